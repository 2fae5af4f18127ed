#include "partition/split_output.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/folders.h"
#include "core/format_lists.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/text.h"
#include "formats/create_subfile.h"
#include "formats/format_table.h"
#include "partition/partition_list.h"
#include "partition/preview_file.h"

#include <QFile>
#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum ActionCode { PreviewCode = 401, MakeCode = 404, PreviewExitCode = 423 };

enum PreviewText { OpenText = 0, CloseText = 1 };

constexpr qsizetype longestTitle = 70;
constexpr qsizetype titleEnd = 33;
/// Bytes of a file's name that every file system takes.
constexpr qsizetype longestFileName = 255;

/// True when a file of that name, with its extension behind it, can stand in a folder.
bool isFileName(const QString &name, const QString &extension)
{
    const auto isBad = [](QChar c) {
        return c == u'/' || c == u'\\' || c.category() == QChar::Other_Control;
    };
    return !trimmed(name).isEmpty() && std::ranges::none_of(name, isBad)
           && QFile::encodeName(name + extension).size() <= longestFileName;
}

} // namespace

SplitOutput::SplitOutput(Form &frmMain, const Parts &parts)
    : command5(frmMain, u"command5"_s),
      command28(frmMain, u"command28"_s),
      command29(frmMain, u"command29"_s),
      Label6(frmMain, u"Label6"_s),
      Label7(frmMain, u"Label7"_s),
      txtPreview(frmMain, u"txtPreview"_s),
      m_parts(parts)
{
    QObject::connect(&command5, &Button::clicked, &command5, [this] { makeParts(); });
    QObject::connect(&command28, &Button::clicked, &command28, [this] {
        if (m_previewing) {
            closePreview();
        } else {
            openPreview();
        }
    });
    for (Button &button : command29) {
        QObject::connect(&button, &Button::clicked, &button,
                         [this, &button] { stepPart(button.index()); });
    }
    showPreview(false);
}

int SplitOutput::format() const
{
    return m_parts.formats.combo3.selected() + 1;
}

void SplitOutput::makeParts()
{
    m_parts.trace.RecordAction({}, MakeCode);
    const SubtitleDocument &document = m_parts.document;
    if (document.subFileName.isEmpty()) {
        refuse(u"There is no subtitle to make parts of. Please load a file first."_s);
        return;
    }
    if (const int part = badPart(); part > 0) {
        refuse({u"Part %1 has no name that a file can have: '%2'./nNothing was written."_s,
                {QString::number(part), m_parts.page.grid.text(part, PartNameColumn)}});
        return;
    }
    m_parts.writer.CreateSubFile(
        {.partition = true, .format = format(), .lastRow = document.subtitleCount()});
}

int SplitOutput::badPart() const
{
    const QString extension = SetSubFileExt(format());
    for (int part = 1; part <= m_parts.page.partCount(); ++part) {
        if (!isFileName(m_parts.page.partName(part), extension)) {
            return part;
        }
    }
    return 0;
}

void SplitOutput::openPreview()
{
    m_previewing = true;
    m_heading = Label6.caption();
    m_parts.list.setEditable(false);
    Label7.setCaption({});
    showPreview(true);
    Label6.setCaption(m_parts.language.text(LangGroup::Preview, OpenText));
    m_previews = m_parts.writer
                     .CreateSubFile({.preview = true,
                                     .partition = true,
                                     .format = format(),
                                     .lastRow = m_parts.document.subtitleCount(),
                                     .showProgress = true})
                     .files;
    m_parts.page.grid.setRow(0);
    stepPart(1);
    m_parts.trace.RecordAction({}, PreviewCode);
}

void SplitOutput::closePreview()
{
    m_previewing = false;
    showPreview(false);
    txtPreview.setText({});
    Label6.setCaption(m_heading);
    m_parts.list.setEditable(true);
    // The previews themselves stand elsewhere, and stay for the tidying at the end.
    m_parts.folders.removeFiles(Folder::Root, u"splitprv.*");
    m_parts.trace.RecordAction({}, PreviewExitCode);
}

void SplitOutput::showPreview(bool shown)
{
    command5.setVisible(!shown);
    command29[0].setVisible(shown);
    command29[1].setVisible(shown);
    Label7.setVisible(shown);
    txtPreview.setVisible(shown);
    const int item = shown ? CloseText : OpenText;
    command28.setCaption(m_parts.language.text(LangGroup::Preview, item));
    command28.setToolTip(m_parts.language.tip(LangGroup::Preview, item));
}

void SplitOutput::stepPart(int index)
{
    Grid &grid = m_parts.page.grid;
    const bool forward = index == 1;
    if (forward ? grid.row() < m_parts.page.partCount() : grid.row() > 1) {
        grid.setRow(grid.row() + (forward ? 1 : -1));
        showPart();
    }
}

void SplitOutput::showPart()
{
    const int part = m_parts.page.grid.row();
    QString title = partTitle(part);
    if (title.size() > longestTitle) {
        title = title.left(titleEnd) % u" .. " % title.right(titleEnd);
    }
    Label7.setCaption(u"# " % QString::number(part) % u" = " % title);

    QStringList lines;
    const QString path = m_previews.value(part - 1);
    const FileStatus status = readPreviewFile(path, lines);
    lines.append(QString()); // each line has its end
    txtPreview.setText(lines.join(u"\r\n"_s));
    if (path.isEmpty()) {
        refuse({u"There is no preview of part %1."_s, {QString::number(part)}});
    } else if (!status.ok()) {
        refuse({u"The preview '%1' can't be read./n%2"_s, {path}, status.text});
    }
}

QString SplitOutput::partTitle(int part) const
{
    const FormatInfo *info = formatInfo(format());
    const QString name = info ? info->name.toString() : QString();
    return m_parts.page.partName(part) % u" [" % name % u']';
}

void SplitOutput::refuse(const MessageText &text)
{
    m_parts.messages.ShowMessage(text, Answer::Ok, u"ok"_s,
                                 m_parts.language.text(LangGroup::Report, 13));
}

} // namespace kavro
