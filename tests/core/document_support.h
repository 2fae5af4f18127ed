#pragma once

#include "tests/support/document_fixture.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace kavro::test {

/// A document over its pages, with no tool around it.
class DocumentTest : public testing::Test, public DocumentFixture
{
protected:
    /// Fills the document, one text a subtitle: "start|end|text|text|text" without what is empty at
    /// the end. Row 1 is shown.
    void fill(const QStringList &subtitles)
    {
        QList<GridRow> rows;
        for (const QString &subtitle : subtitles) {
            rows.append(QStringList(QString::number(rows.size() + 1)) + subtitle.split(u'|'));
        }
        document.editorBlocked = true;
        setRows(rows);
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

    /// "+" for each of the controls that is shown, "-" for one that isn't.
    [[nodiscard]] static std::string shown(std::initializer_list<const Control *> controls)
    {
        std::string text;
        for (const Control *control : controls) {
            text += control->isVisible() ? '+' : '-';
        }
        return text;
    }

    Grid &grid = editor.grdSubEdit;
};

} // namespace kavro::test
