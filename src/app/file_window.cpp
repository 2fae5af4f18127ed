#include "app/file_window.h"

#include "core/action_trace.h"
#include "core/folders.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/ports.h"
#include "formats/file_filters.h"
#include "formats/format_table.h"

#include <QDir>

namespace kavro {

using namespace Qt::StringLiterals;

FileWindowState::FileWindowState(Form &frmFile, const Ports &ports, const Folders &folders,
                                 Messages &messages, const LanguageTable &language,
                                 ActionTrace &trace)
    : List1(frmFile, u"List1"_s),
      List2(frmFile, u"List2"_s),
      List3(frmFile, u"List3"_s),
      File1(frmFile, u"File1"_s),
      txtFilename(frmFile, u"txtFilename"_s),
      Check1(frmFile, u"Check1"_s),
      lblInfo(frmFile, u"lblInfo"_s),
      lblFullName(frmFile, u"lblFullName"_s),
      lblErr(frmFile, u"lblErr"_s),
      Label1(frmFile, u"Label1"_s),
      Label5(frmFile, u"Label5"_s),
      Label36(frmFile, u"Label36"_s),
      cmdAction(frmFile, u"cmdAction"_s),
      m_ports(ports),
      m_folders(folders),
      m_messages(messages),
      m_language(language),
      m_trace(trace)
{
    cmdAction[1].setEnabled(false);

    QObject::connect(&List3, &ListBox::selectedChanged, &List3, [this] { showFilter(); });
    QObject::connect(&List3, &ListBox::picked, &List3, [this] { listFiles(); });
    QObject::connect(&File1, &ListBox::picked, &File1,
                     [this] { txtFilename.setText(File1.selectedText()); });
    QObject::connect(&File1, &ListBox::doubleClicked, &File1, [this] {
        txtFilename.setText(File1.selectedText());
        cmdAction[1].click();
    });
    QObject::connect(&txtFilename, &TextBox::textChanged, &txtFilename,
                     [this](const QString &name) { cmdAction[1].setEnabled(!name.isEmpty()); });
    for (Button &button : cmdAction) {
        QObject::connect(&button, &Button::clicked, &button,
                         [this, &button] { close(button.index()); });
    }
    fillFilters();
}

void FileWindowState::fillFilters()
{
    QStringList labels = filters();
    for (QString &label : labels) {
        label = label.section(u'|', 0, 0);
    }
    List3.setItems(labels);
    List3.setSelected(SupportedFiles);
    showFilter();
}

void FileWindowState::showFilter()
{
    Label5.setCaption(List3.selectedText().section(" ("_L1, 0, 0));
}

/// The file types; the names of formats are the same in every language.
QStringList FileWindowState::filters() const
{
    QStringList filters = fileFilters();
    for (QString &filter : filters) {
        const qsizetype end = filter.indexOf(" ("_L1);
        filter.replace(0, end, m_language.ownText(filter.first(end)));
    }
    return filters;
}

void FileWindowState::setFolder(const QString &folder)
{
    List2.setItems({folder});
    List2.setSelected(0);
    Label1.setCaption(folder);
    if (List1.count() == 0) {
        for (const QFileInfo &drive : QDir::drives()) {
            List1.addItem(QDir::toNativeSeparators(drive.path()).toUpper());
        }
    }
    for (int i = 0; i < List1.count(); ++i) {
        if (folder.startsWith(List1.item(i).left(2), Qt::CaseInsensitive)) {
            List1.setSelected(i);
            Label36.setCaption(List1.item(i));
        }
    }
}

void FileWindowState::goTo(const QString &path)
{
    const QString folder = folderOf(path).toString();
    setFolder(folder.size() > 1 ? folder.chopped(1) : folder);
    txtFilename.setText(nameOf(path).toString());
}

void FileWindowState::listFiles()
{
    File1.setItems(
        filesIn(Label1.caption(), fileFilters().value(List3.selected()).section(u'|', 1)));
}

bool FileWindowState::isFormatChosen() const
{
    return List3.selected() >= 1 && List3.selected() <= formatCount;
}

bool FileWindowState::show(const FileWindowOptions &options)
{
    if (Label1.caption().isEmpty()) {
        setFolder(m_folders.path(Folder::Files));
    }
    lblInfo.setCaption(options.info);
    txtFilename.setEnabled(options.nameEnabled);
    Check1.setVisible(options.mediaName);
    Check1.setOn(false);
    listFiles();

    const FileReply reply =
        m_ports.files.show({.info = options.info,
                            .folder = Label1.caption(),
                            .name = txtFilename.text(),
                            .filters = filters(),
                            .filterIndex = List3.selected(),
                            .nameEnabled = options.nameEnabled,
                            .offersMediaName = options.mediaName,
                            .firstOtherFilter = options.formatNeeded ? SettingFile : 0});
    if (!reply.accepted) {
        cmdAction[0].click();
        return false;
    }
    List3.setSelected(reply.filterIndex);
    Check1.setOn(options.mediaName && reply.mediaName);
    if (!Check1.isOn()) {
        goTo(reply.path);
    }
    cmdAction[1].click();
    return accept();
}

/// A window with a person in it stays open over such a reply; a scripted one is told why it isn't
/// taken.
bool FileWindowState::accept()
{
    if (!lblFullName.caption().isEmpty()) {
        return true;
    }
    m_messages.ShowMessage(u"No file name was given."_s, Answer::Ok, u"ok"_s, u"Warning"_s);
    return false;
}

void FileWindowState::close(int button)
{
    if (Check1.isOn()) {
        lblFullName.setCaption(m_ports.player.fileName());
    } else {
        const QString &folder = Label1.caption();
        const bool ended = folder.endsWith(u'/') || folder.endsWith(QDir::separator());
        lblFullName.setCaption(txtFilename.text().isEmpty()
                                   ? QString()
                                   : folder + (ended ? QString() : QString(QDir::separator()))
                                         + txtFilename.text());
    }
    m_messages.msgResult = button == 0 ? Answer::Cancel : Answer::Ok;
    if (button == 0) {
        m_trace.macroRunning = false;
    }
}

} // namespace kavro
