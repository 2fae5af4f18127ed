// How the document is named, and where its name and encoding are shown.

#include "app/file_commands.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/encoding.h"
#include "core/folders.h"
#include "core/format_lists.h"
#include "core/ports.h"
#include "core/status_panels.h"
#include "formats/file_filters.h"

#include <QDateTime>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// A path as the status bar shows it: one of more than 80 characters loses its middle.
QString shortened(const QString &path)
{
    constexpr qsizetype longest = 80;
    constexpr qsizetype kept = 38;
    return path.size() <= longest ? path : path.left(kept) + u" .. "_s + path.right(kept);
}

} // namespace

void FileCommands::SetFileName(const QString &path, int formatId)
{
    nameDocument(withExtension(path, filterExtension(formatId)), formatId);
}

void FileCommands::nameDocument(const QString &path, int formatId)
{
    SubtitleDocument &document = m_parts.document;
    document.curFormatId = formatId;
    document.subFileName = path;
    document.subBaseName = nameOf(path).toString().section(u'.', 0, 0);
    document.ftpFileName = nameOf(path).toString().replace(u' ', u'_');
    StatusBar &bar = m_parts.status.StatusBar1;
    bar.setPanel(NamePanel, shortened(path));
    bar.setPanel(FormatPanel, filterLabel(formatId));
    fillFileProperties();
    m_parts.history.reset();
    emit document.nameChanged();
}

void FileCommands::fillFileProperties()
{
    const SubtitleDocument &document = m_parts.document;
    const QDateTime now = m_parts.ports.clock.now();
    m_parts.formats.List8.setItems(
        {u"-- New File --"_s, u"Editor: "_s, u"Filename: "_s + document.subFileName,
         u"FTPname: "_s + document.ftpFileName, u"Format: "_s + filterLabel(document.curFormatId),
         u"Language: "_s + m_parts.formats.Combo8[1].selectedText(),
         u"Date: "_s + now.toString(u"yyyy-MM-dd"_s), u"Time: "_s + now.toString(u"HH:mm:ss"_s),
         u"Status:"_s});
}

void FileCommands::showEncoding()
{
    const TextEncoding &encoding = m_parts.document.encoding;
    m_parts.status.lblEncoding.setCaption(encodingText(encoding));
    const std::span<const EncodingEntry> encodings = textEncodings();
    const auto found = std::ranges::find_if(
        encodings, [&](const EncodingEntry &entry) { return encoding.name == entry.name; });
    lstEncoding.setSelected(found == encodings.end() ? -1
                                                     : static_cast<int>(found - encodings.begin()));
}

} // namespace kavro
