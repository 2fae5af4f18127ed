# The one set of warnings and strict macros that every target of ours is built with.
add_library(kavro_strict INTERFACE)
target_compile_options(kavro_strict INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual
  # An assertion in a test that a pointer is there doesn't tell the optimizer so.
  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KAVRO_TEST>>>:-Wnull-dereference> -Wcast-qual -Werror
  # Tests are built quickly; the compiler warns of bounds without cause when it inlines them.
  $<$<BOOL:$<TARGET_PROPERTY:KAVRO_TEST>>:-O1>)
target_compile_definitions(kavro_strict INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_CONTEXTLESS_CONNECT QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH
  QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(KAVRO_SANITIZE)
  target_compile_options(kavro_strict INTERFACE -fsanitize=address,undefined
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kavro_strict INTERFACE -fsanitize=address,undefined)
  # The sanitizers' own checks look like dereferences of null to this warning.
  target_compile_options(kavro_strict INTERFACE -Wno-null-dereference)
endif()

# What nearly every source includes, compiled once a preset.
file(WRITE ${CMAKE_BINARY_DIR}/pch.cpp.new "// Stands behind the precompiled headers.\n")
configure_file(${CMAKE_BINARY_DIR}/pch.cpp.new ${CMAKE_BINARY_DIR}/pch.cpp COPYONLY)
add_library(kavro_pch STATIC ${CMAKE_BINARY_DIR}/pch.cpp)
target_link_libraries(kavro_pch PRIVATE Qt6::Core kavro_strict)
target_precompile_headers(kavro_pch PRIVATE <QObject> <QString> <QStringList> <QHash> <QList>
  <QFile> <QDateTime> <algorithm> <array> <functional> <memory> <optional> <span> <vector>)

# kavro_library(FOLDER [DEPENDS FOLDER...] [LINKS TARGET...] [QT MODULE...])
#
# One static library of all sources of src/FOLDER but its main.cpp, so that tests link what a program
# is made of. DEPENDS names the folders it may include; what is not named is not on its link line, so
# an include that points upward does not link. With QT, modules beside QtCore that it builds on, it
# has a precompiled header of its own.
function(kavro_library folder)
  cmake_parse_arguments(arg "" "" "DEPENDS;LINKS;QT" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(library kavro_${folder})
  add_library(${library} STATIC ${sources})
  set_target_properties(${library} PROPERTIES AUTOMOC ON)
  target_include_directories(${library} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  list(TRANSFORM arg_DEPENDS PREPEND kavro_)
  list(TRANSFORM arg_QT PREPEND Qt6::)
  target_link_libraries(${library} PUBLIC Qt6::Core ${arg_QT} ${arg_DEPENDS}
    PRIVATE kavro_strict ${arg_LINKS})
  if(arg_QT)
    target_precompile_headers(${library} PRIVATE <QtWidgets>)
  else()
    target_precompile_headers(${library} REUSE_FROM kavro_pch)
  endif()
endfunction()

# kavro_tests(FOLDER [LINKS TARGET...]): one test program of all tests/FOLDER/*_test.cpp.
function(kavro_tests folder)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
  add_executable(${folder}_tests ${sources})
  target_include_directories(${folder}_tests PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${folder}_tests PRIVATE
    KAVRO_TEST_FILES="${CMAKE_CURRENT_SOURCE_DIR}/${folder}" KAVRO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  target_link_libraries(${folder}_tests PRIVATE ${arg_LINKS} GTest::gtest kavro_strict)
  set_target_properties(${folder}_tests PROPERTIES KAVRO_TEST ON)
  if(folder STREQUAL "ui")
    target_precompile_headers(${folder}_tests PRIVATE <gtest/gtest.h> <QtWidgets>)
  else()
    target_precompile_headers(${folder}_tests REUSE_FROM kavro_tests_pch)
  endif()
  set_target_properties(${folder}_tests PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  gtest_discover_tests(${folder}_tests TEST_PREFIX ${folder}. DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC")
endfunction()
