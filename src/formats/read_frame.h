#pragma once

#include "core/editor_page.h"
#include "formats/subtitle_format.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace kavro {

class ControlWindow;
class LanguageTable;
class LineReader;
class Messages;
class SubtitleDocument;
enum class Answer;

/// What a format's reader works through: the lines of the file, and the rows that they become.
///
/// The rows are collected beside the document, which stays as it is until the whole file was read.
/// The frame knows what a fault is (a line behind the end, a column that isn't there), puts the one
/// question about it, and lets the reader go on behind the piece that failed.
class ReadFrame
{
public:
    /// All that is referred to is borrowed and outlives the frame.
    struct Source
    {
        LineReader &lines; ///< stands at the first line
        const SubtitleDocument &document;
        const LanguageTable &language;
        Messages &messages;
        ControlWindow &control;
        FileCount count;
        int nextRow = 1; ///< where the first subtitle goes; above 1 behind the document's rows
        bool showLog = false;
        QString lastLine; ///< the line that the detection looked at last
    };

    explicit ReadFrame(const Source &source);

    // The file.

    /// True when no line is left, or no row: a full document ends the file.
    [[nodiscard]] bool atEnd() const;
    /// Goes to the next line. False when there is none: the line stays, and the reader ends. Behind
    /// the file's end that is a fault, since readers ask for lines inside a subtitle alone.
    bool readLine();
    /// The present line, valid until the next `readLine`. Ahead of the first it is the line that
    /// the detection looked at last.
    [[nodiscard]] QStringView line() const { return m_line; }
    [[nodiscard]] const FileCount &count() const { return m_source.count; }
    /// Leaves the header lines out that were counted.
    void skipHeader();

    // The rows. Texts go to the row begun last; before the first they go to the row above, which in
    // a plain load is the header.

    /// Begins a subtitle at `nextRow`: its number, and the regular font entry.
    void newRow();
    [[nodiscard]] int nextRow() const { return static_cast<int>(m_rows.size()); }
    /// Times are moved by the end of what the document holds already.
    void setStart(QStringView code);
    void setEnd(QStringView code);
    /// Puts a text line, trimmed and behind a blank, into a column; one that is empty leaves the
    /// column empty. False and a fault for a column that isn't there.
    bool setText(int column, QStringView text);
    /// The pieces of `text` between separators into the columns from the first text column on.
    void setPieces(QStringView text, QStringView separator);
    void setFontEntry(const QString &entry);

    // What readers ask the program.

    [[nodiscard]] double frameRate() const;
    /// Name of the font that is selected for the file.
    [[nodiscard]] QString selectedFont() const;
    [[nodiscard]] QString regularWord() const;
    [[nodiscard]] QString boldWord() const;
    [[nodiscard]] QString italicWord() const;

    /// The document's default font from now on; empty while a reader left it as it was.
    QString curFontName;

    // What the load takes in the end.

    [[nodiscard]] bool isFull() const { return m_full; }
    [[nodiscard]] int skippedLines() const { return m_skippedLines; }
    /// All rows of the grid, header and end row included.
    [[nodiscard]] QList<GridRow> takeRows();
    /// The font entries of all rows but the end row.
    [[nodiscard]] const QStringList &fontEntries() const { return m_fonts; }

private:
    GridRow &row() { return m_rows.last(); }
    void fault();
    void showProgress();

    Source m_source;
    QStringView m_line;
    QString m_offset; ///< end of the last subtitle that was there
    QString m_regularEntry;
    QList<GridRow> m_rows;
    QStringList m_fonts;
    int m_firstRow;
    int m_skippedLines = 0;
    bool m_full = false;
    Answer m_answer;
};

} // namespace kavro
