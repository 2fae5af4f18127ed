#include "partition/script_preview.h"

#include "controls/form.h"
#include "core/document.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/status_panels.h"
#include "formats/create_subfile.h"
#include "partition/preview_file.h"

namespace kavro {

using namespace Qt::StringLiterals;

ScriptPreview::ScriptPreview(Form &frmPreview, const Parts &parts)
    : List1(frmPreview, u"List1"_s),
      lblData(frmPreview, u"lblData"_s),
      Command1(frmPreview, u"Command1"_s),
      pMove(frmPreview, u"pMove"_s),
      m_form(frmPreview),
      m_parts(parts)
{
    QObject::connect(&Command1, &Button::clicked, &Command1, [this] { m_form.hide(); });
    QObject::connect(&m_form, &Form::closeRequested, &Command1, [this] { m_form.hide(); });
}

void ScriptPreview::mnuPreview()
{
    QStringList lines;
    if (!makeLines(lines)) {
        return;
    }
    List1.setItems(lines);
    List1.setSelected(-1);
    lblData[0].setCaption(m_parts.document.subFileName);
    lblData[1].setCaption(m_parts.status.StatusBar1.panel(FormatPanel));
    lblData[2].setCaption(QString::number(lines.size()));
    m_parts.forms.runModal(m_form);
}

bool ScriptPreview::makeLines(QStringList &lines)
{
    const StatusNote note(m_parts.status,
                          m_parts.language.ownText(u"Creating preview. Please wait..."_s));
    const SubtitleDocument &document = m_parts.document;
    const WriteResult result = m_parts.writer.CreateSubFile(
        {.preview = true, .format = document.curFormatId, .lastRow = document.subtitleCount()});
    if (result.kind != WriteResult::Kind::Written) {
        return false; // the writer has told why
    }
    const FileStatus status = readPreviewFile(result.path, lines);
    if (!status.ok()) {
        m_parts.messages.ShowMessage(
            {u"The preview '%1' can't be read./n%2"_s, {result.path}, status.text}, Answer::Ok,
            u"ok"_s, m_parts.language.text(LangGroup::Report, 13));
    }
    return status.ok();
}

} // namespace kavro
