#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace kavro {

/// The key that language packs are scrambled with. Its length is the length of a group.
inline constexpr QStringView languageKey = u"87654321";

/// Scrambles a line of a language pack: each UTF-16 unit becomes its code combined with the key by
/// exclusive or, as a group of decimal digits of the key's length.
///
/// @param key  digits, enough of them that 65535 combined with it has no more
QString EncodeLangLine(QStringView text, QStringView key);

/// The line behind `EncodeLangLine`; nothing when a group stands for no character, such as in a
/// file that isn't scrambled or with another key. A group is read leniently, a short one at the
/// end too.
std::optional<QString> DecodeLangLine(QStringView line, QStringView key);

} // namespace kavro
