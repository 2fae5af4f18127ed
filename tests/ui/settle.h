#pragma once

#include <QTest>

namespace kavro::test {

/// Lets what is due happen, layouts and paints too. It counts turns of the event loop, since a
/// time alone may pass without one on a busy machine.
inline void settle()
{
    constexpr int turns = 5;
    for (int turn = 0; turn < turns; ++turn) {
        QTest::qWait(10);
    }
}

} // namespace kavro::test
