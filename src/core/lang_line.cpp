#include "core/lang_line.h"

#include "core/text.h"

#include <limits>

namespace kavro {

QString EncodeLangLine(QStringView text, QStringView key)
{
    const int number = intVal(key);
    QString line;
    line.reserve(text.size() * key.size());
    for (const QChar unit : text) {
        line += QString::number(unit.unicode() ^ number).rightJustified(key.size(), u'0');
    }
    return line;
}

std::optional<QString> DecodeLangLine(QStringView line, QStringView key)
{
    if (key.isEmpty()) {
        return std::nullopt;
    }
    const int number = intVal(key);
    QString text;
    text.reserve(line.size() / key.size() + 1);
    for (qsizetype at = 0; at < line.size(); at += key.size()) {
        const int unit =
            intVal(line.sliced(at).first(std::min(key.size(), line.size() - at))) ^ number;
        if (unit < 0 || unit > std::numeric_limits<char16_t>::max()) {
            return std::nullopt;
        }
        text += QChar(unit);
    }
    return text;
}

} // namespace kavro
