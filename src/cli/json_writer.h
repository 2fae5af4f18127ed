#pragma once

#include <QByteArray>
#include <QStringView>

#include <ostream>

namespace kavro {

/// Writes one JSON value on one line, the keys of an object in the order in which they come.
class JsonWriter
{
public:
    JsonWriter &beginObject();
    JsonWriter &endObject();
    JsonWriter &beginArray();
    JsonWriter &endArray();
    /// The key of the value that comes next.
    JsonWriter &key(QStringView name);

    JsonWriter &text(QStringView value);
    JsonWriter &number(double value);
    JsonWriter &boolean(bool value);
    JsonWriter &null();

    /// A key and its value.
    JsonWriter &text(QStringView name, QStringView value) { return key(name).text(value); }
    JsonWriter &number(QStringView name, double value) { return key(name).number(value); }
    JsonWriter &boolean(QStringView name, bool value) { return key(name).boolean(value); }

    /// A list of texts.
    template <class Texts>
    JsonWriter &texts(const Texts &values)
    {
        beginArray();
        for (const auto &value : values)
            text(value);
        return endArray();
    }

    /// What was written, in UTF-8, without a line end.
    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    JsonWriter &open(char bracket);
    JsonWriter &close(char bracket);
    void separate();
    void quote(QStringView text);

    QByteArray m_bytes;
    bool m_first = true; ///< nothing stands in the innermost object or array, or a key waits
};

/// Writes the value as a line of its own.
void writeLine(std::ostream &stream, const JsonWriter &json);

} // namespace kavro
