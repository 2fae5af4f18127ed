#include "cli/drive_arguments.h"

namespace kavro {

using namespace Qt::StringLiterals;

QStringView takeWord(QStringView &rest)
{
    const qsizetype blank = rest.indexOf(u' ');
    const QStringView word = blank < 0 ? rest : rest.first(blank);
    rest = blank < 0 ? QStringView() : rest.sliced(blank + 1);
    return word;
}

std::optional<int> wholeNumber(QStringView text)
{
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
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
