#pragma once

#include "controls/control.h"
#include "core/action_trace.h"
#include "core/encoding.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <functional>

namespace kavro {

class LanguageTable;
struct EditorPage;
struct FontLists;
struct PlayerPage;
struct SettingsPage;
struct TimePage;

/// A named range of rows, first to last, 1-based.
struct Node
{
    int firstRow = 0;
    int lastRow = 0;
    QString name;
    bool flag = false;

    bool operator==(const Node &) const = default;
};

/// The loaded subtitle: the grid of the editor page and the side stores that stay in step with it.
///
/// Row 0 of the grid is the header, rows 1 to Rows-2 are the subtitles, row Rows-1 is the empty end
/// row. Texts of the cells are told in `Column`; text cells of a loaded file begin with a blank.
class SubtitleDocument : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxSubtitles = 9999;
    static constexpr int maxNodes = 99;

    SubtitleDocument(EditorPage &editor, TimePage &times, FontLists &fonts, PlayerPage &player,
                     SettingsPage &settings, const LanguageTable &language, ActionTrace &trace);

    /// Number of subtitles, Rows-2, never below 0.
    [[nodiscard]] int subtitleCount() const;

    /// Full path with the machine's own separators; "Noname" in the data folder for a new document.
    QString subFileName;
    QString subBaseName;          ///< name without folder, cut at its first "."
    QString ftpFileName;          ///< name for the online exchange
    int curFormatId = 0;          ///< 1 to 16, 0 for none
    bool subtitleChanged = false; ///< the player's list matches the grid
    int curRow = 0;               ///< current row as the grid's events last saw it
    int searchIndex = 0;          ///< row of the last click in the grid
    bool editorBlocked = false;   ///< a bulk fill is under way; row changes do nothing
    int scriptTime = 0;           ///< start of the current row in 10 ms, less one
    QString frameRate = QStringLiteral("25.000");  ///< frames a second
    QString curFontName = QStringLiteral("Arial"); ///< font of new rows
    int errorCount = 0;                            ///< findings of the last scan
    TextEncoding encoding; ///< what the file was read in and is written back in
    /// The path and format that the document came from or went to at last, empty after a split or
    /// an added file of another format: what Ctrl+S may write to without a question.
    QString savedPath;
    int savedFormatId = 0;

    /// The finding of a row; empty for none and outside the grid.
    [[nodiscard]] QString rowErrorText(int row) const;
    void setRowErrorText(int row, const QString &text);
    void clearRowErrors();
    /// All findings by row, shared until written; rows behind the end of the list have none.
    [[nodiscard]] const QStringList &rowErrors() const { return m_rowErrorText; }
    /// What lies behind the last row that can be is cut off.
    void setRowErrors(const QStringList &texts);

    /// Element 0 stands for the whole document; 1 to nodeCount are the nodes, sorted, without gaps.
    std::array<Node, maxNodes + 1> nodes;
    int nodeCount = 0;
    int curNode = 0;

    /// The document differs from its file.
    [[nodiscard]] bool fileChanged() const { return m_fileChanged; }
    void setFileChanged(bool changed);
    /// What every edit does: `fileChanged` set, `subtitleChanged` cleared.
    void markEdited();
    /// A save went into a file: `fileChanged` is cleared, but stays or is set when rows were left
    /// out of it.
    void markSaved(bool whole);

    /// One act of the user's that may change the document. Acts nest, and only the outermost
    /// counts: what a delete, its repairs and their marks do is one step back.
    class Act
    {
    public:
        explicit Act(SubtitleDocument &document);
        ~Act();
        Q_DISABLE_COPY_MOVE(Act)

    private:
        SubtitleDocument &m_document;
    };
    std::function<void()> actBegins; ///< before the outermost act changes anything
    std::function<void()> actEnded;  ///< when it is done

    /// Captions of the columns from the language table; column 0 has none.
    std::array<QString, 6> gridColCaption;
    void fillColumnCaptions();

    /// Two rows, the second empty. Touches no side store and leaves the panels as they are.
    void ClearGrid();
    /// Three rows, one empty subtitle, one node, and that subtitle current and shown; what stood in
    /// the side stores is gone. The document has no encoding and no file of its own any more; its
    /// name and `fileChanged` are the caller's.
    void startNew();
    /// Takes findings and cell colours away: the start of a load or a new document.
    void clearFindings();
    /// Shows the current row in the panels; runs at each change of the current cell, and does
    /// nothing while `editorBlocked`.
    void RefreshCurrentRow();
    /// Hides the panel of the current row's finding, or shows it again; nothing without a finding.
    void toggleFinding();
    /// Shows one line of the current row in preview line `index`, 0 to 2, trimmed on the left and
    /// in the style of row `curRow`, and selects that row's font and style in their lists.
    void subShowSubtitle(const QString &text, int index);
    /// Fills the player's list with one entry a subtitle and sets `subtitleChanged`.
    void BuildPlayerList();
    /// Paints the marks of all nodes by row and column, then sets the grid's top row. A node that
    /// begins behind the end of the grid becomes the last one; marks stand on subtitles alone.
    void ShowNodeMarks(int topRow);
    /// Starts a node at `row`, which ends the one before there; where one starts already, the two
    /// are joined instead. Names stay with their rows, so that two nodes may come to have like
    /// ones. Element 0 stands before node 1 and takes or gives rows as any other does. False, with
    /// nothing changed, when there is no such row or no number left for a node.
    [[nodiscard]] bool toggleNode(int row);
    /// The cells of every node back to plain numbers and no colour.
    void clearNodeMarks();
    /// The font entry of a row; empty for a row without one.
    [[nodiscard]] QString fontEntry(int row) const;
    /// font + ";Western;" + style + ";" + size. An empty font is "Arial", an empty style the
    /// regular one; an empty size stays empty.
    [[nodiscard]] QString makeFontEntry(const QString &font, const QString &style,
                                        const QString &size) const;
    /// The entry of a row whose file tells nothing: "Arial;Western;Regular;16".
    [[nodiscard]] QString regularFontEntry() const;

    EditorPage &editor;
    TimePage &times;
    FontLists &fonts;
    PlayerPage &player;

signals:
    void fileChangedChanged(bool changed);
    /// A save left rows out: what was on disk is gone, and no state of the document is there.
    void savedInPart();
    /// `subFileName` is another one.
    void nameChanged();
    /// A plain load or a new document put another document in the place of this one.
    void replaced();
    /// The findings of the last scan went away with the lines that they were about.
    void findingsGone();

private:
    void connectGrid();
    void connectCellEditor();
    void connectEditBox();

    void showPosition();
    void showRowTexts();
    void showCellTools();
    void showFinding();
    void enableRowCommands();
    void showLine(QStringView text, int index, QStringView style);
    void selectFont(QStringView font, QStringView style);

    void enterCellEditor();
    void pressInCellEditor(Key key);
    void changeCell();
    void dropCellEdit();
    void showCellEditor();
    void hideCellTools();
    [[nodiscard]] bool isCellTool(const Control *control) const;

    void startNode(std::size_t number, int row);
    void joinNode(std::size_t number);
    void unmarkFirstRow(int row);
    void unmarkLastRow(int row);
    void markNode(const Node &node);
    [[nodiscard]] bool isSubtitle(int row) const;

    SettingsPage &m_settings;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
    bool m_fileChanged = false;
    int m_acts = 0;
    QStringList m_rowErrorText;
};

} // namespace kavro
