#include "core/timecode.h"

#include "core/text.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// The fields of a time; any of them may lie outside its range.
struct Fields
{
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    int milliseconds = 0;
};

bool digitAt(const QChar *at, int &digit)
{
    digit = at->unicode() - u'0';
    return digit >= 0 && digit <= 9;
}

bool twoDigits(const QChar *at, int &value)
{
    int tens = 0;
    int ones = 0;
    const bool digits = digitAt(at, tens) && digitAt(at + 1, ones);
    value = tens * 10 + ones;
    return digits;
}

/// The form that nearly every time has: twelve characters, digits in each field.
bool readPlain(QStringView code, Fields &fields)
{
    if (code.size() != 12)
        return false;
    const QChar *at = code.data();
    int hundreds = 0;
    const bool digits = twoDigits(at, fields.hours) && twoDigits(at + 3, fields.minutes)
                        && twoDigits(at + 6, fields.seconds) && digitAt(at + 9, hundreds)
                        && twoDigits(at + 10, fields.milliseconds);
    fields.milliseconds += hundreds * 100;
    return digits;
}

Fields readFields(QStringView code)
{
    Fields fields;
    if (readPlain(code, fields))
        return fields;
    return {.hours = intVal(Mid(code, 1, 2)),
            .minutes = intVal(Mid(code, 4, 2)),
            .seconds = intVal(Mid(code, 7, 2)),
            .milliseconds = intVal(Right(code, 3))};
}

/// Two digits, as many as a minus sign and one, or three where the carry did not reach.
QChar *putTwo(QChar *at, int value)
{
    if (value >= 0 && value <= 99) {
        *at++ = QChar(u'0' + value / 10);
        *at++ = QChar(u'0' + value % 10);
        return at;
    }
    const QString text = QString::number(value);
    return std::copy(text.begin(), text.end(), at);
}

QChar *putThree(QChar *at, int value)
{
    if (value >= 0 && value <= 999) {
        *at++ = QChar(u'0' + value / 100);
        return putTwo(at, value % 100);
    }
    const QString text = QString::number(value).rightJustified(3, u'0');
    return std::copy(text.begin(), text.end(), at);
}

QString writeFields(const Fields &fields)
{
    std::array<QChar, 20> buffer; // no field of two or three characters grows beyond four
    QChar *at = putTwo(buffer.data(), fields.hours);
    *at++ = u':';
    at = putTwo(at, fields.minutes);
    *at++ = u':';
    at = putTwo(at, fields.seconds);
    *at++ = u',';
    at = putThree(at, fields.milliseconds);
    return QString(buffer.data(), at - buffer.data());
}

void add(Fields &sum, const Fields &b)
{
    sum.milliseconds += b.milliseconds;
    sum.seconds += b.seconds;
    sum.minutes += b.minutes;
    sum.hours += b.hours;
    if (sum.milliseconds > 999) {
        sum.milliseconds -= 1000;
        ++sum.seconds;
    }
    if (sum.seconds > 59) {
        sum.seconds -= 60;
        ++sum.minutes;
    }
    if (sum.minutes > 59) {
        sum.minutes -= 60;
        ++sum.hours;
    }
}

void subtract(Fields &difference, const Fields &b)
{
    difference.milliseconds -= b.milliseconds;
    difference.seconds -= b.seconds;
    difference.minutes -= b.minutes;
    difference.hours -= b.hours;
    if (difference.milliseconds < 0) {
        difference.milliseconds += 1000;
        --difference.seconds;
    }
    if (difference.seconds < 0) {
        difference.seconds += 60;
        --difference.minutes;
    }
    if (difference.minutes < 0) {
        difference.minutes += 60;
        --difference.hours;
    }
}

/// As many digits as there are, two at least.
QChar *putPadded(QChar *at, qint64 value)
{
    if (value >= 0 && value <= 99)
        return putTwo(at, static_cast<int>(value));
    const QString text = (value < 10 ? u"0"_s : QString()) + QString::number(value);
    return std::copy(text.begin(), text.end(), at);
}

} // namespace

double TimeCodeToMs(QStringView code)
{
    const Fields fields = readFields(code);
    return fields.hours * 3600000.0 + fields.minutes * 60000.0 + fields.seconds * 1000.0
           + fields.milliseconds;
}

QString TimeCodeAdd(QStringView a, QStringView b, QChar op)
{
    if (op != u'+' && op != u'-')
        return u"00:00:00,000"_s;
    Fields fields = readFields(a);
    if (op == u'+')
        add(fields, readFields(b));
    else
        subtract(fields, readFields(b));
    if (fields.hours < -9 || fields.hours > 99)
        return a.toString();
    return writeFields(fields);
}

QString SecondsToTimeCode(QStringView text)
{
    const qsizetype point = text.indexOf(u'.');
    constexpr double greatest = 1e15;
    const double whole = Val(point < 0 ? text : text.first(point));
    const qint64 seconds = static_cast<qint64>(std::clamp(whole, -greatest, greatest));

    std::array<QChar, 48> buffer; // the hours of the greatest number have twelve digits
    QChar *at = putPadded(buffer.data(), seconds / 3600);
    *at++ = u':';
    at = putPadded(at, seconds / 60 % 60);
    *at++ = u':';
    at = putPadded(at, seconds % 60);
    *at++ = u',';
    const QStringView fraction = point < 0 ? QStringView() : text.sliced(point + 1);
    const QStringView digits = Right(fraction, 3);
    at = std::copy(digits.begin(), digits.end(), at);
    at = std::fill_n(at, 3 - digits.size(), u'0');
    return QString(buffer.data(), at - buffer.data());
}

} // namespace kavro
