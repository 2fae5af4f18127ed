#include "core/line_reader.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdint>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// Small enough to stay in the fast memory: to read and decode a file again for each pass costs
/// less than to keep it.
constexpr qsizetype pieceLength = 1 << 16;

/// What a pipe may bring: it can't be read twice and is kept.
constexpr qint64 longestPipe = qint64{32} << 20;

/// No encoding needs more bytes for the longest line.
constexpr qsizetype longestLineBytes = 4 * LineReader::maxLineLength;

bool holdsByte(QByteArrayView bytes, char byte)
{
    return std::memchr(bytes.data(), byte, static_cast<std::size_t>(bytes.size())) != nullptr;
}

} // namespace

const FileStatus &LineReader::open(const QString &path, const ReadOptions &options)
{
    close();
    m_status = {};
    if (openFile(path) && examine(options))
        startDecoding();
    if (!m_status.ok())
        close();
    return m_status;
}

void LineReader::close()
{
    m_device.reset();
    m_text.clear();
    m_pos = 0;
    m_bytesRead = true;
}

bool LineReader::openFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        fail(FileFault::Folder, u"It is a folder, not a file."_s);
        return false;
    }
    if (!info.exists()) {
        fail(FileFault::Missing, u"The file doesn't exist."_s);
        return false;
    }
    m_device = std::make_unique<QFile>(path);
    if (!m_device->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        fail(FileFault::Unreadable, m_device->errorString());
        return false;
    }
    return !m_device->isSequential() || keepPipe();
}

bool LineReader::keepPipe()
{
    QByteArray bytes;
    for (;;) {
        const QByteArray part = m_device->read(pieceLength);
        if (part.isEmpty())
            break;
        bytes += part;
        if (bytes.size() > longestPipe) {
            fail(FileFault::TooLarge, u"It brings more than 32 MiB."_s);
            return false;
        }
    }
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    m_device = std::move(buffer);
    return true;
}

bool LineReader::examine(const ReadOptions &options)
{
    if (!readPiece())
        return false;
    const QByteArrayView head = QByteArrayView(m_piece).first(m_pieceSize);
    const std::optional<TextEncoding> marked = encodingByMark(head);
    m_markLength = 0;
    if (marked && (!options.encoding || options.encoding->name == marked->name))
        m_markLength = markOf(marked->name).size();
    if (m_pieceSize == m_markLength) {
        fail(FileFault::Empty, u"The file is empty."_s);
        return false;
    }

    EncodingDetector detector(options.codePage);
    const std::optional<TextEncoding> settled = m_markLength > 0 ? marked : options.encoding;
    const bool wide = settled && settled->name.startsWith("UTF-") && settled->name != "UTF-8";
    if (!examinePieces(settled ? nullptr : &detector, wide))
        return false;
    m_encoding = settled ? *settled : detector.finish();
    return true;
}

bool LineReader::examinePieces(EncodingDetector *detector, bool mayHoldNul)
{
    qsizetype lineBytes = 0;
    for (;;) {
        const QByteArrayView piece = QByteArrayView(m_piece).first(m_pieceSize);
        if (!mayHoldNul && holdsByte(piece, '\0')) {
            fail(FileFault::Binary, u"It is no text file, it holds bytes of the value 0."_s);
            return false;
        }
        // A line without end must not cost a pass over the whole file.
        const bool endsLine = holdsByte(piece, '\n') || holdsByte(piece, '\r');
        lineBytes = endsLine ? 0 : lineBytes + piece.size();
        if (lineBytes > longestLineBytes) {
            fail(FileFault::LineTooLong, u"It has a line that is longer than 1 MiB."_s);
            return false;
        }
        if (detector != nullptr)
            detector->feed(piece);
        if (m_bytesRead)
            return true;
        if (!readPiece())
            return false;
    }
}

bool LineReader::readPiece()
{
    if (m_piece.isEmpty())
        m_piece.resize(pieceLength);
    const qint64 count = m_device->read(m_piece.data(), pieceLength);
    m_bytesRead = count < pieceLength;
    m_pieceSize = std::max<qint64>(count, 0);
    if (count < 0)
        fail(FileFault::Unreadable, m_device->errorString());
    return count >= 0;
}

void LineReader::startDecoding()
{
    m_decoder =
        QStringDecoder(m_encoding.name.constData(), QStringConverter::Flag::ConvertInitialBom);
    m_device->seek(0);
    m_bytesRead = false;
    m_markRead = false;
    m_skipLf = false;
    m_pos = m_text.size();
    refill();
}

void LineReader::restart()
{
    if (m_device && m_status.ok())
        startDecoding();
}

// The text that is left moves to the head of the other string, so that the view of the last line
// stays valid.
void LineReader::refill()
{
    const qsizetype left = m_text.size() - m_pos;
    m_spentText.resize(left);
    std::copy_n(m_text.constData() + m_pos, left, m_spentText.data());
    m_text.swap(m_spentText);
    m_pos = 0;
    while (m_text.size() == left && !m_bytesRead) {
        if (!readPiece())
            return;
        const qsizetype skipped = m_markRead ? 0 : std::min(m_markLength, m_pieceSize);
        m_markRead = true;
        const QByteArrayView bytes = QByteArrayView(m_piece).first(m_pieceSize).sliced(skipped);
        m_text.resize(left + m_decoder.requiredSpace(bytes.size()));
        const QChar *const end = m_decoder.appendToBuffer(m_text.data() + left, bytes);
        m_text.truncate(end - m_text.constData());
        if (m_skipLf && m_text.size() > left) {
            m_skipLf = false;
            if (m_text[left] == u'\n')
                m_text.remove(left, 1);
        }
    }
}

qsizetype LineReader::findLineEnd(qsizetype from) const
{
    const auto endsLine = [](char16_t c) { return c == u'\n' || c == u'\r'; };
    const char16_t *const text = QStringView(m_text).utf16();
    const char16_t *const end = text + m_text.size();
    const char16_t *at = text + from;
    // Eight at a time: without a branch among them the compiler makes it one wide comparison.
    constexpr std::ptrdiff_t block = 8;
    for (; end - at >= block; at += block) {
        std::uint16_t controls = 0;
        for (std::ptrdiff_t i = 0; i < block; ++i)
            controls |= at[i] <= u'\r' ? 1 : 0;
        if (controls == 0)
            continue;
        const char16_t *const found = std::find_if(at, at + block, endsLine);
        if (found != at + block)
            return found - text;
    }
    return std::find_if(at, end, endsLine) - text;
}

QStringView LineReader::readLine()
{
    qsizetype end = findLineEnd(m_pos);
    while (end == m_text.size() && !m_bytesRead && end - m_pos <= maxLineLength) {
        const qsizetype searched = end - m_pos;
        refill();
        end = findLineEnd(searched);
    }
    if (end - m_pos > maxLineLength) {
        fail(FileFault::LineTooLong, u"It has a line that is longer than 1 MiB."_s);
        return {};
    }
    const QStringView line = QStringView(m_text).sliced(m_pos, end - m_pos);
    m_pos = end;
    if (end < m_text.size()) {
        ++m_pos;
        if (m_text[end] == u'\r') {
            m_skipLf = m_pos == m_text.size();
            if (!m_skipLf && m_text[m_pos] == u'\n')
                ++m_pos;
        }
    }
    if (m_pos == m_text.size() && !m_bytesRead)
        refill();
    return line;
}

void LineReader::fail(FileFault fault, const QString &text)
{
    m_status = {.fault = fault, .text = text};
    m_bytesRead = true;
    m_pos = m_text.size();
}

} // namespace kavro
