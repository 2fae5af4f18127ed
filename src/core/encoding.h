#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringEncoder>
#include <QStringView>

#include <memory>
#include <optional>
#include <span>

namespace kavro {

/// How text stands in a file: one of `textEncodings`, by name, with or without byte order mark.
/// A default one is what a new document has.
struct TextEncoding
{
    QByteArray name = "UTF-8";
    bool bom = false;

    bool operator==(const TextEncoding &) const = default;
};

/// An encoding that "Reopen as" offers.
struct EncodingEntry
{
    const char *name;  ///< as files and the command line name it
    const char *label; ///< for a person: "Cyrillic (Windows-1251)"
};

/// The encodings in the order of the list; every name can be read and written.
std::span<const EncodingEntry> textEncodings();

/// The encoding with this name, in any case and by its usual other names; UTF-16 and UTF-32 have a
/// byte order mark. None when nobody knows the name.
std::optional<TextEncoding> encodingByName(QStringView name);

/// The name of the code page of a font's character set (0 Western, 204 Cyrillic, ...); empty when
/// the set names none.
QByteArray codePageOfCharacterSet(int characterSet);

/// The encoding as the status bar shows it: its name, with " BOM" behind a UTF-8 that has a mark.
QString encodingText(const TextEncoding &encoding);

/// Finds a file's encoding from its bytes, handed in one piece after the other; memory is bounded
/// whatever the file's size.
///
/// A byte order mark decides; else UTF-8 when every byte fits it; else the code page of the
/// setting; else a guess from the bytes; else Windows-1252.
class EncodingDetector
{
public:
    /// @param codePage  what the setting says, empty when it is off
    explicit EncodingDetector(const QByteArray &codePage = {});
    ~EncodingDetector();
    EncodingDetector(const EncodingDetector &) = delete;
    EncodingDetector &operator=(const EncodingDetector &) = delete;

    /// The first piece must hold four bytes, if the file has so many.
    void feed(QByteArrayView bytes);

    /// Takes the pieces so far for the whole file.
    [[nodiscard]] TextEncoding finish();

private:
    [[nodiscard]] bool fitsUtf8(QByteArrayView bytes);
    void feedGuess(QByteArrayView bytes);

    struct Guess;
    std::optional<TextEncoding> m_found;
    QByteArray m_codePage;
    QByteArray m_sequence;          ///< of UTF-8, cut at the end of a piece
    std::unique_ptr<Guess> m_guess; ///< from the piece on that isn't UTF-8
    qsizetype m_guessed = 0;        ///< bytes that the guess was given
    bool m_first = true;
};

/// The encoding whose byte order mark `bytes` begin with.
std::optional<TextEncoding> encodingByMark(QByteArrayView bytes);

/// The byte order mark of an encoding's name; empty when it has none.
QByteArrayView markOf(const QByteArray &name);

/// Turns text into the bytes of one file, piece after piece.
class TextEncoder
{
public:
    explicit TextEncoder(const TextEncoding &encoding);

    /// Appends the bytes of `text` to `bytes`; the first call puts the byte order mark ahead.
    /// @return  false when a character can't be held; a substitute stands in its place
    bool append(QStringView text, QByteArray &bytes);

private:
    QStringEncoder m_encoder;
    QByteArray m_mark;
};

/// Asks ahead of a write whether an encoding holds a text.
class EncodingCheck
{
public:
    explicit EncodingCheck(const TextEncoding &encoding);

    /// True when every character of `text` can be held.
    bool holds(QStringView text);

private:
    QByteArray m_name;
    bool m_unicode;
    std::optional<QStringEncoder> m_encoder; ///< made anew behind a fault
    QByteArray m_bytes;                      ///< kept from call to call for its memory
};

} // namespace kavro
