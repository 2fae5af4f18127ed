#pragma once

#include "controls/form.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/font_lists.h"
#include "core/language.h"
#include "core/player_page.h"
#include "core/settings_page.h"
#include "core/time_page.h"
#include "tests/support/document_text.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace kavro::test {

/// A document over its pages, with no tool around it.
class DocumentTest : public testing::Test
{
protected:
    DocumentTest()
    {
        fonts.fillStyles(language);
        document.fillColumnCaptions();
    }

    /// Fills the document, one text a subtitle: "start|end|text|text|text" without what is empty at
    /// the end. Row 1 is shown.
    void fill(const QStringList &subtitles)
    {
        document.editorBlocked = true;
        document.ClearGrid();
        grid.setRows(static_cast<int>(subtitles.size()) + 2);
        QStringList entries{QString()};
        for (int row = 1; row <= subtitles.size(); ++row) {
            const QStringList cells = subtitles[row - 1].split(u'|');
            grid.setText(row, NumberColumn, QString::number(row));
            for (int i = 0; i < cells.size(); ++i) {
                grid.setText(row, StartColumn + i, cells[i]);
            }
            entries.append(document.regularFontEntry());
        }
        editor.lstFont.setItems(entries);
        grid.setCurrent(1, StartColumn);
        document.editorBlocked = false;
        document.RefreshCurrentRow();
    }

    /// So many subtitles, each with its number for a text.
    void fillRows(int count)
    {
        QStringList subtitles;
        for (int row = 1; row <= count; ++row) {
            subtitles.append(QStringLiteral("00:00:01,000|00:00:02,000| %1").arg(row));
        }
        fill(subtitles);
    }

    /// Column 0 of the rows behind the header.
    [[nodiscard]] std::string numbers() const
    {
        QStringList texts;
        for (int row = 1; row < grid.rows(); ++row) {
            texts.append(grid.text(row, NumberColumn));
        }
        return texts.join(u'|').toStdString();
    }

    /// "row,col=RRGGBB" of the cells with a colour.
    [[nodiscard]] std::string colours() const
    {
        return test::colourLines(grid).join(u' ').toStdString();
    }

    Form frmMain{QStringLiteral("frmMain")};
    Form frmSettings{QStringLiteral("frmSettings")};
    LanguageTable language;
    ActionTrace trace;
    EditorPage editor{frmMain};
    TimePage times{frmMain};
    FontLists fonts{frmMain};
    PlayerPage player{frmMain};
    SettingsPage settings{frmSettings};
    SubtitleDocument document{editor, times, fonts, player, settings, language, trace};
    Grid &grid = editor.grdSubEdit;
};

} // namespace kavro::test
