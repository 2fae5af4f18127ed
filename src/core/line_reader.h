#pragma once

#include "core/encoding.h"
#include "core/file_status.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QStringDecoder>
#include <QStringView>

#include <memory>
#include <optional>

namespace kavro {

/// What decides a file's encoding besides its bytes.
struct ReadOptions
{
    std::optional<TextEncoding> encoding = {}; ///< a person's choice: taken whatever the bytes say
    QByteArray codePage = {}; ///< the setting's, for bytes that are not UTF-8; empty when off
};

/// Reads a text file line by line in constant memory. CR LF, LF and CR all end a line; the last
/// line needs no end.
///
/// Opening finds the encoding from the bytes of the whole file; a file with a fault gives it there,
/// as far as it can be told without counting lines. A fault while reading (a line that is too long,
/// a device that fails) ends the file: `atEnd` is true and `status` tells it.
class LineReader
{
public:
    /// The longest line, in UTF-16 units without its end.
    static constexpr qsizetype maxLineLength = 1 << 20;

    LineReader() = default;
    LineReader(const LineReader &) = delete;
    LineReader &operator=(const LineReader &) = delete;

    /// Opens a file at its first line. A file that fails is closed again; its status stays.
    const FileStatus &open(const QString &path, const ReadOptions &options = {});
    void close();

    /// True when no line is left. Cheap; leaves the view of the last line valid.
    [[nodiscard]] bool atEnd() const { return m_pos == m_text.size(); }

    /// The next line without its end, valid until the next call of a function that isn't const.
    /// At the end it is empty.
    QStringView readLine();

    /// Goes back to the first line.
    void restart();

    [[nodiscard]] const FileStatus &status() const { return m_status; }
    [[nodiscard]] const TextEncoding &encoding() const { return m_encoding; }

private:
    bool openFile(const QString &path);
    bool keepPipe();
    bool examine(const ReadOptions &options);
    bool examinePieces(EncodingDetector *detector, bool mayHoldNul);
    bool readPiece();
    void startDecoding();
    void refill();
    [[nodiscard]] qsizetype findLineEnd(qsizetype from) const;
    void fail(FileFault fault, const QString &text);

    std::unique_ptr<QIODevice> m_device;
    FileStatus m_status;
    TextEncoding m_encoding;
    qsizetype m_markLength = 0;
    QStringDecoder m_decoder;
    QByteArray m_piece; ///< of the file; its first `m_pieceSize` bytes
    qsizetype m_pieceSize = 0;
    bool m_bytesRead = true; ///< behind `m_piece` the file has no more
    bool m_markRead = false;
    QString m_text;      ///< decoded, and not handed out from `m_pos` on
    QString m_spentText; ///< the text before; the last line handed out may lie in it
    qsizetype m_pos = 0;
    bool m_skipLf = false; ///< a CR ended the text: an LF at the head of what follows belongs to it
};

} // namespace kavro
