#include "formats/load_run.h"

#include "controls/form.h"
#include "core/control_window.h"
#include "core/document.h"
#include "core/encoding.h"
#include "core/format_lists.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/player_page.h"
#include "core/ports.h"
#include "core/settings_page.h"
#include "core/text.h"
#include "formats/detection.h"

#include <QDateTime>
#include <QStringBuilder>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kavro {

LoadRun::LoadRun(const SubtitleLoader::Parts &parts, LoadRequest &request)
    : m_parts(parts),
      m_request(request),
      m_firstRow(request.nextRow > 1 ? std::max(parts.document.subtitleCount(), 0) + 1 : 1)
{}

LoadResult LoadRun::run()
{
    if (m_firstRow > 1 && m_parts.document.nodeCount >= SubtitleDocument::maxNodes) {
        m_parts.messages.ShowMessage(report(18), Answer::Ok, u"ok"_s, u"File.Add Error"_s);
        return {.error = report(18)};
    }
    if (m_request.showLog)
        m_parts.control.open(report(17));
    m_parts.document.player.timPlayer.setOn(false);
    // Events that wait are not served here: one that closed the program or loaded another file
    // would find a load half done.
    const Form::Busy busy(m_parts.document.editor.grdSubEdit.form());
    LoadResult result = load();
    m_parts.control.ProgressBar1.setValue(0);
    if (m_request.showLog) {
        if (!result.ok())
            m_parts.control.setCaption(report(14));
        m_parts.control.finish();
    }
    return result;
}

LoadResult LoadRun::load()
{
    if (isMovie()) {
        if (const auto ended = openMovie())
            return *ended;
    }
    if (!m_request.detectOnly && !mayReplaceDocument())
        return {.kind = Kind::Cancelled};
    if (const auto failed = examineFile())
        return *failed;
    m_request.format = m_format;
    if (m_request.detectOnly)
        return {.kind = Kind::Detected};
    if (m_believed != UnknownFormat && m_believed != m_format) {
        m_parts.messages.ShowMessage({u"Loading '%1' instead of '%2' format."_s,
                                      {formatName(m_format), formatName(m_believed)}},
                                     Answer::Ok, u"ok"_s, u"Wrong format."_s);
    }
    return isAboveLimit() ? refuseForLimit() : readDocument();
}

bool LoadRun::mayReplaceDocument()
{
    if (m_firstRow > 1 || !m_parts.document.fileChanged())
        return true;
    const Answer answer = m_parts.messages.ShowMessage(
        {u"Kavro is about to load '%1',/nbut file '%2'/nhas been changed and not saved./n/n"
         "Do you want to save now?/nIf you choose 'No', all changes are lost."_s,
         {m_request.path, m_parts.document.subFileName}},
        Answer::Yes, u"yesnocancel"_s, u"Warning: File not saved"_s);
    // A save that wrote nothing, or not all, must not cost what was to be saved.
    return answer == Answer::No || (answer == Answer::Yes && m_parts.host.saveDocument());
}

ReadOptions LoadRun::readOptions() const
{
    ReadOptions options = m_request.encoding;
    const SettingsPage &settings = m_parts.settings;
    if (options.codePage.isEmpty() && settings.Check6[0].isOn()) {
        options.codePage =
            codePageOfCharacterSet(SettingsPage::characterSetOf(settings.cmbScript.selectedText()));
    }
    return options;
}

std::optional<LoadResult> LoadRun::examineFile()
{
    m_believed = m_request.linesDecide ? static_cast<int>(UnknownFormat) : m_request.format;
    if (m_believed < 0 || m_believed > formatCount)
        return fail(u"It isn't loaded as a subtitle."_s);
    if (!m_reader.open(m_request.path, readOptions()).ok())
        return fail(m_reader.status().text);
    m_format = formatOfFile();
    if (!m_reader.status().ok())
        return fail(m_reader.status().text);
    if (m_format == UnknownFormat)
        return fail(u"It is no subtitle file of a format that Kavro knows."_s);
    if (!countSubtitles(m_format))
        return fail(m_reader.status().text);
    return std::nullopt;
}

// The extension settles the format when it belongs to one alone, as long as the file has subtitles
// of that format.
int LoadRun::formatOfFile()
{
    const FormatId owner = m_believed == UnknownFormat && !m_request.linesDecide
                               ? formatByExtension(m_request.path)
                               : UnknownFormat;
    if (owner == UnknownFormat || !fileHasText())
        return looksAtLines(m_believed) ? formatOfLines(m_believed) : m_believed;
    if (!countSubtitles(owner) || m_fileCount.subtitles > 0)
        return owner;
    m_believed = owner;
    return formatOfLines(UnknownFormat);
}

bool LoadRun::fileHasText()
{
    m_reader.restart();
    while (!m_reader.atEnd()) {
        if (!trimmed(m_reader.readLine()).isEmpty())
            return true;
    }
    return false;
}

int LoadRun::formatOfLines(int believed)
{
    const Detection found = detectFormat(m_reader, believed);
    m_lastLine = found.lastLine;
    return found.format;
}

bool LoadRun::countSubtitles(int format)
{
    if (m_counted == format)
        return true;
    m_reader.restart();
    m_fileCount = formatInfo(format)->implementation()->count(m_reader);
    constexpr double most = 1e9;
    m_count = m_firstRow + static_cast<int>(std::lround(std::min(m_fileCount.subtitles, most)));
    m_counted = format;
    return m_reader.status().ok();
}

bool LoadRun::isAboveLimit() const
{
    return m_count - 1 > SubtitleDocument::maxSubtitles;
}

LoadResult LoadRun::readDocument()
{
    if (m_request.showLog)
        logRead();
    // Text ahead of the first subtitle goes into the header; what the last file left there ends.
    if (m_firstRow == 1)
        m_parts.document.fillColumnCaptions();
    m_reader.restart();
    ReadFrame frame({.lines = m_reader,
                     .document = m_parts.document,
                     .language = m_parts.language,
                     .messages = m_parts.messages,
                     .control = m_parts.control,
                     .count = m_fileCount,
                     .nextRow = m_firstRow,
                     .showLog = m_request.showLog,
                     .lastLine = m_lastLine});
    formatInfo(m_format)->implementation()->read(frame);
    if (!m_reader.status().ok())
        return fail(m_reader.status().text);
    if (frame.isFull()) {
        // More rows than were counted: the message tells as many lines as are known of.
        m_count = std::max(m_count, frame.nextRow() + 1);
        return refuseForLimit();
    }
    m_request.nextRow = frame.nextRow();
    replaceDocument(frame);
    if (m_request.showLog)
        logEnd();
    return {.kind = Kind::Loaded, .skippedLines = frame.skippedLines()};
}

LoadResult LoadRun::fail(const QString &error)
{
    if (m_request.showMessages) {
        m_parts.messages.ShowMessage({u"File '%1' can't be loaded./n%2"_s, {m_request.path}, error},
                                     Answer::Ok, u"ok"_s, report(13));
    }
    return {.kind = Kind::Failed, .error = error};
}

const QString &LoadRun::report(int item) const
{
    return m_parts.language.text(LangGroup::Report, item);
}

// The log goes on behind what stands in it.

QString LoadRun::logHead(int item) const
{
    const QDateTime now = m_parts.clock.now();
    return report(item) % u"\r\n" % report(1) % now.toString(u"yyyy-MM-dd, HH:mm:ss") % u"\r\n"
           % report(2);
}

void LoadRun::logRead()
{
    // The name as the lists spell it.
    const QString name = m_parts.lists.combo3.item(m_format - 1);
    m_parts.control.append(logHead(3) % u"\r\n" % m_request.path % u"\r\n" % report(4) % name
                           % u"\r\n" % report(5) % QString::number(m_count - 1) % u"\r\n");
}

void LoadRun::logEnd()
{
    m_parts.control.append(report(6) % u"\r\n" % report(15) % u"\r\n" % report(16) % u"\r\n");
}

} // namespace kavro
