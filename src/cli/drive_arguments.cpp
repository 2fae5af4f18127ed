#include "cli/drive_arguments.h"

#include <algorithm>
#include <limits>

namespace kavro {

using namespace Qt::StringLiterals;

QStringView takeWord(QStringView &rest)
{
    const qsizetype blank = rest.indexOf(u' ');
    const QStringView word = blank < 0 ? rest : rest.first(blank);
    rest = blank < 0 ? QStringView() : rest.sliced(blank + 1);
    return word;
}

bool isDigits(QStringView text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return !text.isEmpty() && std::ranges::all_of(text, isDigit);
}

std::optional<int> wholeNumber(QStringView text)
{
    using Limits = std::numeric_limits<int>;
    text = text.trimmed();
    bool fits = false;
    const int number = text.toInt(&fits);
    if (fits)
        return number;
    const bool isNegative = text.startsWith(u'-');
    if (!isDigits(text.sliced(isNegative || text.startsWith(u'+') ? 1 : 0)))
        return std::nullopt;
    return isNegative ? Limits::min() : Limits::max();
}

std::optional<double> decimalNumber(QStringView text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? std::optional(number) : std::nullopt;
}

Outcome noNumber(QStringView text)
{
    return Outcome::wrong(u"\"%1\" is no number"_s.arg(text));
}

} // namespace kavro
