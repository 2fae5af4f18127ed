#include "cli/json_writer.h"

#include "core/text.h"

namespace kavro {

namespace {

/// "\u" and four digits: control characters, and halves of a pair that stand alone.
void appendEscaped(QByteArray &bytes, char16_t unit)
{
    bytes += "\\u";
    bytes += QByteArray::number(unit, 16).rightJustified(4, '0');
}

void appendControl(QByteArray &bytes, char16_t unit)
{
    switch (unit) {
    case u'\n': bytes += "\\n"; break;
    case u'\r': bytes += "\\r"; break;
    case u'\t': bytes += "\\t"; break;
    default: appendEscaped(bytes, unit);
    }
}

} // namespace

JsonWriter &JsonWriter::beginObject()
{
    return open('{');
}

JsonWriter &JsonWriter::endObject()
{
    return close('}');
}

JsonWriter &JsonWriter::beginArray()
{
    return open('[');
}

JsonWriter &JsonWriter::endArray()
{
    return close(']');
}

JsonWriter &JsonWriter::key(QStringView name)
{
    separate();
    quote(name);
    m_bytes += ": ";
    m_first = true;
    return *this;
}

JsonWriter &JsonWriter::text(QStringView value)
{
    separate();
    quote(value);
    return *this;
}

JsonWriter &JsonWriter::number(double value)
{
    separate();
    m_bytes += numberText(value).toLatin1();
    return *this;
}

JsonWriter &JsonWriter::boolean(bool value)
{
    separate();
    m_bytes += value ? "true" : "false";
    return *this;
}

JsonWriter &JsonWriter::null()
{
    separate();
    m_bytes += "null";
    return *this;
}

JsonWriter &JsonWriter::open(char bracket)
{
    separate();
    m_bytes += bracket;
    m_first = true;
    return *this;
}

JsonWriter &JsonWriter::close(char bracket)
{
    m_bytes += bracket;
    m_first = false;
    return *this;
}

void JsonWriter::separate()
{
    if (!m_first)
        m_bytes += ", ";
    m_first = false;
}

void JsonWriter::quote(QStringView text)
{
    m_bytes += '"';
    qsizetype plain = 0; // where the stretch begins that needs no escape
    const auto flush = [&](qsizetype end) {
        m_bytes += text.sliced(plain, end - plain).toUtf8();
        plain = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u'"' || unit == u'\\') {
            flush(i);
            m_bytes += '\\';
            m_bytes += static_cast<char>(unit);
        } else if (unit < u' ') {
            flush(i);
            appendControl(m_bytes, unit);
        } else if (QChar::isSurrogate(unit)) {
            const bool pair =
                QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            if (pair) {
                ++i;
            } else {
                flush(i);
                appendEscaped(m_bytes, unit);
            }
        }
    }
    flush(text.size());
    m_bytes += '"';
}

void writeLine(std::ostream &stream, const JsonWriter &json)
{
    stream.write(json.bytes().constData(), json.bytes().size()).put('\n');
}

} // namespace kavro
