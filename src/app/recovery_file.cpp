#include "app/recovery_file.h"

#include "formats/format_table.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QIODevice>
#include <QSaveFile>

namespace kavro {

namespace {

// The file: this number, the number of the layout, a checksum of the rest, the rest. It is read by
// the program that wrote it and its next versions alone, so that nothing is spent on making it
// text.
constexpr quint32 magic = 0x4B564F52;
constexpr quint32 layout = 1;
constexpr auto streamVersion = QDataStream::Qt_6_4;
/// More than any document needs; a damaged length must not ask for the machine's memory.
constexpr qint64 largestFile = 512LL * 1024 * 1024;

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

QDataStream &operator<<(QDataStream &out, const Node &node)
{
    return out << qint32(node.firstRow) << qint32(node.lastRow) << node.name << node.flag;
}

QDataStream &operator>>(QDataStream &in, Node &node)
{
    return in >> node.firstRow >> node.lastRow >> node.name >> node.flag;
}

QByteArray packed(const KeptDocument &document)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    out << document.time << document.subFileName << qint32(document.formatId)
        << document.encoding.name << document.encoding.bom << document.savedPath
        << qint32(document.savedFormatId) << document.frameRate << document.fontName
        << document.rows << document.fonts << qint32(document.curNode)
        << qint32(document.nodes.size());
    for (const Node &node : document.nodes) {
        out << node;
    }
    return bytes;
}

bool unpack(const QByteArray &bytes, KeptDocument &document)
{
    QDataStream in(bytes);
    in.setVersion(streamVersion);
    qint32 nodes = 0;
    in >> document.time >> document.subFileName >> document.formatId >> document.encoding.name
        >> document.encoding.bom >> document.savedPath >> document.savedFormatId
        >> document.frameRate >> document.fontName >> document.rows >> document.fonts
        >> document.curNode >> nodes;
    for (int i = 0; i < nodes && in.status() == QDataStream::Ok; ++i) {
        document.nodes.emplaceBack();
        in >> document.nodes.last();
    }
    return in.status() == QDataStream::Ok && in.atEnd() && nodes > 0
           && nodes <= SubtitleDocument::maxNodes + 1 && document.rows.size() >= 2
           && (document.formatId == UnknownFormat || formatInfo(document.formatId) != nullptr);
}

} // namespace

FileStatus writeRecovery(const QString &path, const KeptDocument &document)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        const QByteArray bytes = packed(document);
        QDataStream out(&file);
        out.setVersion(streamVersion);
        out << magic << layout << checksum(bytes) << bytes;
        if (file.commit()) {
            return {};
        }
    }
    return {.fault = FileFault::Unwritable, .text = file.errorString()};
}

std::optional<KeptDocument> readRecovery(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile) {
        return std::nullopt;
    }
    QDataStream in(&file);
    in.setVersion(streamVersion);
    quint32 foundMagic = 0;
    quint32 foundLayout = 0;
    QByteArray sum;
    QByteArray bytes;
    in >> foundMagic >> foundLayout;
    if (foundMagic != magic || foundLayout != layout) {
        return std::nullopt;
    }
    in >> sum >> bytes;
    KeptDocument document;
    if (in.status() != QDataStream::Ok || sum != checksum(bytes) || !unpack(bytes, document)) {
        return std::nullopt;
    }
    return document;
}

} // namespace kavro
