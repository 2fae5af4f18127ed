#include "formats/write_run.h"

#include "controls/form.h"
#include "core/control_window.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/folders.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/safe_file.h"
#include "core/text.h"
#include "core/timecode.h"
#include "formats/file_filters.h"
#include "formats/format_table.h"
#include "formats/subtitle_format.h"

#include <QStringBuilder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

/// Rows of a plain run end before this.
constexpr QStringView lastTime = u"99:59:59,999";

} // namespace

WriteRun::WriteRun(SubtitleWriter &writer, const SubtitleWriter::Parts &parts,
                   const WriteRequest &request)
    : m_writer(writer),
      m_parts(parts),
      m_request(request),
      m_info(formatInfo(request.format)),
      m_frame(parts.document, parts.language),
      m_encoding(request.preview ? previewEncoding() : parts.document.encoding),
      m_partOffset(u"00:00:00,000"_s),
      m_row(std::max(request.firstRow, 1)),
      m_lastRow(std::min(request.lastRow, parts.document.subtitleCount()))
{
    if (m_info)
        m_format = m_info->implementation();
}

WriteResult WriteRun::run()
{
    if (!m_format) {
        fail(u"no subtitle format was chosen"_s);
        return m_result;
    }
    if (m_request.showProgress)
        m_parts.control.open(report(10));
    const Form::Busy busy(m_parts.document.editor.grdSubEdit.form());
    m_parts.partition.List2.clear();
    if (!m_request.preview)
        m_losses.emplace(*m_info);
    const int files = m_request.partition ? m_parts.partition.partCount() : 1;
    m_result.kind = Kind::Written;
    for (int number = 1; number <= files && writeFile(number); ++number) {
    }
    tellLosses();
    m_parts.control.ProgressBar1.setValue(0);
    if (m_request.showProgress && m_result.losses.isEmpty())
        m_parts.control.lblEnd.form().hide();
    else if (m_request.showProgress)
        m_parts.control.finish(); // to be read by who has such windows stay
    return m_result;
}

bool WriteRun::writeFile(int number)
{
    if (m_request.partition && number > 1)
        m_partOffset = TimeCodeAdd(m_partOffset, partLength(number - 1), u'+');
    m_partEnd = m_request.partition ? TimeCodeAdd(m_partOffset, partLength(number), u'+')
                                    : lastTime.toString();
    const QString path = pathOf(number);
    if (!m_request.preview && m_request.askOverwrite && !m_writer.FileExist(path))
        return cancel(u"The file is there already."_s);
    makeText(path);
    if (!chooseEncoding(path) || !save(path))
        return false;
    m_result.path = path;
    m_result.files.append(path);
    if (m_request.partition && !m_request.preview)
        takeName(path);
    if (!m_request.partition)
        tellRowsLeft();
    return true;
}

QString WriteRun::partLength(int number) const
{
    return m_parts.partition.grid.text(number, PartLengthColumn);
}

QString WriteRun::pathOf(int number) const
{
    if (m_request.preview) {
        const QString name = u"Splitprv.%1"_s.arg(number, 3, 10, QChar(u'0'));
        return m_parts.folders.writablePath(Folder::Temporary, name);
    }
    const QString extension = SetSubFileExt(m_request.format);
    if (m_request.partition) {
        return folderOf(m_parts.document.subFileName) % m_parts.partition.partName(number)
               % extension;
    }
    return m_request.literal ? m_request.path : withExtension(m_request.path, extension);
}

void WriteRun::makeText(const QString &path)
{
    m_frame.startFile(m_partOffset);
    m_format->writeHeader(m_frame);
    while (m_row <= m_lastRow) {
        showProgress();
        // Times of one form sort as texts; a row that ends where the file ends is the next one's.
        const QString &end = m_parts.document.editor.grdSubEdit.text(m_row, EndColumn);
        if (trimmed(end) >= m_partEnd)
            break;
        m_frame.moveTo(m_row);
        const bool written = !m_frame.start().startsWith(u'-') || acceptsNegativeTime(path);
        ++m_row; // a row that is refused is in no file
        if (!written)
            break;
        m_format->writeRow(m_frame);
        if (m_losses)
            m_losses->add(m_frame);
        ++m_result.rowsWritten;
    }
    m_format->writeTrailer(m_frame);
}

bool WriteRun::acceptsNegativeTime(const QString &path)
{
    const QString text = m_request.preview
                             ? u"%1 calculating Preview file. Negative time calculated during "
                               "Partitioning./nPlease do not partition in subtitle display time. "
                               "Continue?"_s
                             : u"%1 creating %2. Negative time calculated during Partitioning./n"
                               "Please do not partition in subtitle display time. Continue?"_s;
    return m_parts.messages.ShowMessage({text, {report(13), path}}, Answer::No, u"yesno"_s,
                                        report(13))
           == Answer::Yes;
}

void WriteRun::showProgress()
{
    if (!m_request.showProgress || m_request.preview)
        return;
    const int rows = std::max(m_lastRow - m_request.firstRow + 1, 1);
    m_parts.control.ProgressBar1.setValue((m_row - m_request.firstRow + 1) * 100 / rows);
}

bool WriteRun::chooseEncoding(const QString &path)
{
    EncodingCheck check(m_encoding);
    if (check.holds(m_frame.text()))
        return true;
    // A cut by position may have left half a character in a cell; no encoding holds that.
    m_frame.replaceHalves();
    if (check.holds(m_frame.text()))
        return true;
    const QString name = encodingText(m_encoding);
    const Answer answer =
        m_parts.messages.ShowMessage({u"File %1 holds characters that the encoding %2 has not./n/n"
                                      "Do you want to write it as UTF-8?"_s,
                                      {path, name}},
                                     Answer::Yes, u"yesno"_s, report(12));
    if (answer != Answer::Yes)
        return cancel(u"It holds characters that the encoding %1 has not."_s.arg(name));
    m_encoding = {};
    return true;
}

bool WriteRun::save(const QString &path)
{
    const FileStatus room = m_parts.folders.makeRoomFor(path);
    if (!room.ok())
        return fail(room.text);
    FileWriter file(m_parts.store);
    file.open(path, m_encoding, m_request.preview ? WriteMode::Plain : WriteMode::Replace);
    file.write(m_frame.text());
    if (!file.commit().ok())
        return fail(file.status().text);
    if (!m_request.preview)
        m_parts.document.encoding = m_encoding;
    return true;
}

// The parts stand beside the document's file, and the last one gives the document its name; none
// of them holds the whole document, so none may be saved to without a question.
void WriteRun::takeName(const QString &path)
{
    SubtitleDocument &document = m_parts.document;
    m_parts.partition.List2.addItem(nameOf(path).toString());
    document.subFileName = path;
    document.savedPath.clear();
    document.savedFormatId = UnknownFormat;
    emit document.nameChanged();
}

// The rows behind a row that ends the file early are in no file: the person is told, since only
// this document still has them.
void WriteRun::tellRowsLeft()
{
    const int first = m_request.firstRow + m_result.rowsWritten;
    if (first > m_lastRow)
        return;
    m_result.firstRowLeft = first;
    m_result.rowsLeft = m_lastRow - first + 1;
    m_parts.messages.ShowMessage(
        {u"The file ends before row %1, which ends at '%2'./nRows that were not written: %3."_s,
         {QString::number(first), m_parts.document.editor.grdSubEdit.text(first, EndColumn),
          QString::number(m_result.rowsLeft)}},
        Answer::Ok, u"ok"_s, report(12));
}

// What a format can't hold is no fault; the log tells it once a run, for all its files.
void WriteRun::tellLosses()
{
    if (!m_losses || m_result.files.isEmpty())
        return;
    m_result.losses = m_losses->lines(m_parts.language);
    for (const QString &line : std::as_const(m_result.losses))
        m_parts.control.append(line % u"\r\n");
}

bool WriteRun::cancel(const QString &reason)
{
    m_result.kind = Kind::Cancelled;
    m_result.error = reason;
    return false;
}

bool WriteRun::fail(const QString &description)
{
    m_result.kind = Kind::Failed;
    m_result.error = description;
    m_parts.messages.ShowMessage({u"Error writing file (%1)."_s, {}, description}, Answer::Ok,
                                 u"ok"_s, report(13));
    return false;
}

const QString &WriteRun::report(int item) const
{
    return m_parts.language.text(LangGroup::Report, item);
}

} // namespace kavro
