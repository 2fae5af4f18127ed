#pragma once

#include <QString>

#include <vector>

namespace kavro {

class LanguageTable;
class TreeView;

/// What a run tells at its end.
struct RunSummary
{
    QString duration;
    int lines = 0;
    QString words;
    QString multiLines;
    QString time;
    QString frames;
    int detected = 0;
    int fixed = 0;
};

/// What runs have to tell, in its order. A run that begins takes away what stood before; one that
/// goes on behind it adds to it, and what has its place already falls there.
///
/// The tree itself is made when all is told: a repair may go through thousands of runs, and nobody
/// sees the trees in between.
class ResultTree
{
public:
    struct Heading
    {
        QString file;
        QString format;
        QString date;
        QString time;
        QString errors; ///< caption of the findings
    };

    enum class Solution { OfTime, OfText };

    /// `language` outlives the tree.
    explicit ResultTree(const LanguageTable &language) : m_language(language) {}

    /// A run begins.
    void begin(const Heading &heading);
    /// The run has come to a node.
    void addNode(int node, int firstRow, int lastRow);
    void addFinding(int node, int row, const QString &explanation);
    /// A finding that stands straight under its node.
    void addBareFinding(int node, const QString &explanation);
    void addSolution(Solution kind, int row, const QString &solution);
    /// The run has ended.
    void end(const RunSummary &summary);

    /// Findings that are left, also where the outermost run hasn't seen them.
    [[nodiscard]] int remaining() const;
    /// Fills the tree anew.
    void fill(TreeView &tree) const;

private:
    enum class Kind { Node, Finding, BareFinding, TimeSolution, TextSolution, Summary };

    struct Entry
    {
        Kind kind;
        int node = 0;
        int row = 0; ///< the summary's place for `Summary`
        QString text = {};
    };

    void fillHeading(TreeView &tree) const;
    void fillEntry(TreeView &tree, const Entry &entry) const;
    void fillSummary(TreeView &tree, const RunSummary &summary) const;

    const LanguageTable &m_language;
    Heading m_heading;
    std::vector<Entry> m_entries;
    std::vector<RunSummary> m_summaries;
};

} // namespace kavro
