#pragma once

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/control_window.h"
#include "core/diagnose_host.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/folders.h"
#include "core/font_lists.h"
#include "core/format_lists.h"
#include "core/language.h"
#include "core/macro_variables.h"
#include "core/main_menu.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/player_page.h"
#include "core/safe_file.h"
#include "core/settings_page.h"
#include "core/time_page.h"
#include "tests/support/scripted_ports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <string>

namespace kavro::test {

/// Counts the scans that others have run; each may do something of its own.
struct CountedScan : DiagnoseHost
{
    void GoDiagnose() override { count(runs); }
    void diagnoseWithoutRepairs() override { count(quietRuns); }

    std::function<void()> during;
    int runs = 0;
    int quietRuns = 0;

private:
    void count(int &scans)
    {
        ++scans;
        if (during) {
            during();
        }
    }
};

/// A document with its pages and scripted answers, in an application folder of its own; for tests
/// below the program.
struct DocumentFixture
{
    DocumentFixture()
    {
        document.fillColumnCaptions();
        fonts.fillStyles(language);
        fonts.Combo9[0].setItems({QStringLiteral("Arial"), QStringLiteral("Verdana")});
        fonts.Combo9[0].setSelected(0);
    }

    /// Full path of a name in the fixture's folder; it needn't be there.
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    /// Writes a file of the fixture's folder as UTF-8 and returns its full path.
    QString write(const QString &name, const QString &text) const
    {
        return writeBytes(name, text.toUtf8());
    }

    QString writeBytes(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QDir().mkpath(QFileInfo(file).path());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(bytes);
        }
        return file.fileName();
    }

    /// The bytes of a file, "(none)" when it isn't there.
    [[nodiscard]] static std::string read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    /// Takes rows of six cells or fewer for the document's subtitles.
    void setRows(const QList<GridRow> &subtitles)
    {
        QList<GridRow> all{editor.grdSubEdit.allRows().constFirst()};
        QStringList entries{QString()};
        for (const GridRow &row : subtitles) {
            all.append(row);
            entries.append(document.regularFontEntry());
        }
        all.append(GridRow());
        editor.grdSubEdit.setAllRows(all);
        editor.lstFont.setItems(entries);
        document.nodeCount = 1;
        document.nodes[1] = {.firstRow = 1,
                             .lastRow = static_cast<int>(subtitles.size()),
                             .name = QStringLiteral("All"),
                             .flag = false};
    }

    /// One line a subtitle: start, a blank, end, and the text cells as they stand, each behind a
    /// "|", without the empty ones at the end.
    [[nodiscard]] std::string rows() const
    {
        QStringList lines;
        for (int row = 1; row <= document.subtitleCount(); ++row) {
            QString line = cell(row, StartColumn) + QChar(u' ') + cell(row, EndColumn);
            for (int column = FirstTextColumn; column <= LastTextColumn; ++column) {
                line += QChar(u'|') + cell(row, column);
            }
            while (line.endsWith(QChar(u'|'))) {
                line.chop(1);
            }
            lines.append(line);
        }
        return lines.join(QChar(u'\n')).toStdString();
    }

    [[nodiscard]] const QString &cell(int row, int column) const
    {
        return editor.grdSubEdit.text(row, column);
    }

    /// The titles and texts of the messages shown so far, a line each with "/" for line breaks, and
    /// forgets them.
    std::string takeMessages()
    {
        QStringList lines;
        for (const Message &message : messageWindow.shown) {
            lines.append(
                message.title + QStringLiteral(": ")
                + QString(message.text).replace(QStringLiteral("\r\n"), QStringLiteral("/")));
        }
        messageWindow.shown.clear();
        return lines.join(QChar(u'\n')).toStdString();
    }

    QTemporaryDir folder;
    ScriptedMessages messageWindow;
    ScriptedForms formWindows;
    FakeClock clock;
    FileStore store;
    Folders folders{store,
                    {.appDir = folder.filePath(QStringLiteral("app")),
                     .home = {},
                     .executableFolder = folder.path(),
                     .userData = folder.filePath(QStringLiteral("user")),
                     .temporary = folder.filePath(QStringLiteral("tmp"))},
                    FolderUse::Own};

    Form frmMain{QStringLiteral("frmMain")};
    Form frmControl{QStringLiteral("frmControl")};
    Form frmMessageBox{QStringLiteral("frmMessageBox")};
    Form frmSettings{QStringLiteral("frmSettings")};
    Form frmHistory{QStringLiteral("frmHistory")};
    LanguageTable language;
    ActionTrace trace;
    MacroVariables variables;
    MainMenu menu{frmMain};
    EditorPage editor{frmMain};
    TimePage times{frmMain};
    FontLists fonts{frmMain};
    FormatLists formats{frmMain};
    PlayerPage player{frmMain};
    PartitionPage partition{frmMain};
    SettingsPage settings{frmSettings};
    Messages messages{frmMessageBox, messageWindow, language, trace, variables};
    ControlWindow control{frmControl, settings};
    SubtitleDocument document{editor, times, fonts, player, settings, language, trace};
    CountedScan diagnose;
    EditHistory history{frmHistory,
                        {.document = document,
                         .forms = formWindows,
                         .clock = clock,
                         .folders = folders,
                         .store = store,
                         .messages = messages,
                         .diagnose = diagnose,
                         .versionNumber = QStringLiteral("4.00")}};
};

} // namespace kavro::test
