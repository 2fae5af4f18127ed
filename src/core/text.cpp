#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

constexpr char16_t blank = u' ';
constexpr int significantDigits = 15;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

double powerOfTen(qsizetype exponent)
{
    static constexpr std::array powers = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    return powers[static_cast<std::size_t>(exponent)];
}

/// Digits with at most one ".", as they stand between sign and rest.
double numberOf(QStringView digits)
{
    qint64 mantissa = 0;
    qsizetype decimals = 0;
    bool behindPoint = false;
    if (digits.size() > significantDigits) {
        const double value = digits.toDouble();
        return std::min(value, std::numeric_limits<double>::max());
    }
    for (const QChar c : digits) {
        if (c == u'.') {
            behindPoint = true;
            continue;
        }
        mantissa = mantissa * 10 + (c.unicode() - u'0');
        decimals += behindPoint ? 1 : 0;
    }
    // Both are exact below 2^53, so the one division rounds as a conversion of the whole text
    // would.
    return static_cast<double>(mantissa) / powerOfTen(decimals);
}

/// The decimal text of a number that isn't small and whole: its digits, placed around the point.
QString placedDigits(double value)
{
    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::scientific, significantDigits - 1);
    const std::string_view text(buffer.data(),
                                static_cast<std::size_t>(written.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    int exponent = 0;
    const bool down = text[mark + 1] == '-';
    std::from_chars(text.data() + mark + 2, text.data() + text.size(), exponent);
    exponent = down ? -exponent : exponent;

    const bool negative = text.front() == '-';
    std::array<QChar, significantDigits> digits;
    qsizetype count = 0;
    for (const char c : text.substr(0, mark)) {
        if (c >= '0' && c <= '9')
            digits[static_cast<std::size_t>(count++)] = QLatin1Char(c);
    }
    while (count > 1 && digits[static_cast<std::size_t>(count - 1)] == u'0')
        --count;

    const QStringView all(digits.data(), count);
    const qsizetype whole = exponent + 1; // digits ahead of the point
    QString placed;
    placed.reserve(std::max(count, whole) + std::max<qsizetype>(-whole, 0) + 3);
    if (negative)
        placed.append(u'-');
    if (whole <= 0)
        placed.append(u"0.").append(QString(-whole, u'0')).append(all);
    else if (whole >= count)
        placed.append(all).append(QString(whole - count, u'0'));
    else
        placed.append(all.first(whole)).append(u'.').append(all.sliced(whole));
    return placed;
}

} // namespace

double Val(QStringView text)
{
    const QChar *c = text.begin();
    const QChar *const end = text.end();
    while (c != end && *c == blank)
        ++c;
    const bool negative = c != end && *c == u'-';
    if (c != end && (*c == u'-' || *c == u'+'))
        ++c;
    const QChar *const first = c;
    bool point = false;
    while (c != end && (isDigit(*c) || (*c == u'.' && !point))) {
        point = point || *c == u'.';
        ++c;
    }
    const double value = numberOf(QStringView(first, c));
    return negative ? -value : value;
}

int intVal(QStringView text)
{
    const double value = std::trunc(Val(text));
    return static_cast<int>(std::clamp(value, double{std::numeric_limits<int>::min()},
                                       double{std::numeric_limits<int>::max()}));
}

QString numberText(double value)
{
    if (!std::isfinite(value))
        return u"0"_s;
    if (std::abs(value) < 1e15 && value == std::trunc(value))
        return QString::number(static_cast<qint64>(value));
    return placedDigits(value);
}

QString blankNumberText(double value)
{
    const QString text = numberText(value);
    return text.startsWith(u'-') ? text : blank + text;
}

QStringView trimmed(QStringView text)
{
    return leftTrimmed(rightTrimmed(text));
}

QStringView leftTrimmed(QStringView text)
{
    while (text.startsWith(blank))
        text = text.sliced(1);
    return text;
}

QStringView rightTrimmed(QStringView text)
{
    while (text.endsWith(blank))
        text.chop(1);
    return text;
}

QStringView Mid(QStringView text, qsizetype start, qsizetype length)
{
    const qsizetype from = std::clamp<qsizetype>(start - 1, 0, text.size());
    return text.sliced(from, std::clamp<qsizetype>(length, 0, text.size() - from));
}

QStringView Left(QStringView text, qsizetype length)
{
    return Mid(text, 1, length);
}

QStringView Right(QStringView text, qsizetype length)
{
    return text.last(std::clamp<qsizetype>(length, 0, text.size()));
}

qsizetype InStr(QStringView text, QStringView what)
{
    return text.indexOf(what) + 1;
}

QString lowerCase(QStringView text)
{
    constexpr QChar dottedI(0x0130); // the one letter whose small form is more than one character
    QString lower(text.size(), Qt::Uninitialized);
    QChar *to = lower.data();
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c.unicode() < 0x80) {
            *to++ = c >= u'A' && c <= u'Z' ? QChar(c.unicode() | 0x20) : c;
        } else if (c.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
            const char32_t pair = QChar::toLower(QChar::surrogateToUcs4(c, text[++at]));
            *to++ = QChar(QChar::highSurrogate(pair));
            *to++ = QChar(QChar::lowSurrogate(pair));
        } else {
            *to++ = c == dottedI ? QChar(u'i') : c.toLower();
        }
    }
    return lower;
}

QString expandLineBreaks(QStringView text)
{
    return text.toString().replace("/n"_L1, "\r\n"_L1);
}

double cutToWhole(double value)
{
    const double nearest = std::round(value);
    return std::abs(value - nearest) <= 1e-9 ? nearest : std::floor(value);
}

double cutToThousandths(double seconds)
{
    constexpr double greatest = 1e12;
    if (!(seconds > 0))
        return 0;
    const double thousandths = std::min(seconds, greatest) * 1000;
    const double nearest = std::round(thousandths);
    // The tolerance is one of the seconds: in thousandths it is a thousand times as wide.
    return std::abs(thousandths - nearest) <= 1e-6 ? nearest : std::floor(thousandths);
}

QString secondsText(double seconds)
{
    const auto thousandths = static_cast<qint64>(cutToThousandths(seconds));
    std::array<char, 24> buffer{};
    char *at = std::to_chars(buffer.data(), buffer.data() + 20, thousandths / 1000).ptr;
    *at++ = '.';
    for (const qint64 digit : {thousandths / 100 % 10, thousandths / 10 % 10, thousandths % 10})
        *at++ = static_cast<char>('0' + digit);
    return QString::fromLatin1(buffer.data(), at - buffer.data());
}

} // namespace kavro
