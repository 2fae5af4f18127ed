#pragma once

#include "controls/form.h"
#include "tests/diagnose/diagnose_fixture.h"

namespace kavro::test {

/// The scan step by step as it is told, with runs that call themselves and a tree that is built as
/// they go: slow, deep, and what the scan itself has to agree with.
class PlainDiagnose
{
public:
    explicit PlainDiagnose(DiagnoseFixture &fixture)
        : m_program(fixture.run.program()), m_document(fixture.document), m_grid(fixture.grid)
    {}

    void GoDiagnose();

    Form form{QStringLiteral("frmPlain")};
    TreeView tree{form, QStringLiteral("tvDiag")};

private:
    struct Counts
    {
        int errors = 0;
        int fixed = 0;
        int words = 0;
        int multiLines = 0;
        QString total = QStringLiteral("00:00:00,000");
    };

    [[nodiscard]] bool box(int index) const { return m_program.diagnose.Check3[index].isOn(); }
    void add(const QString &parent, const QString &key, const QString &text);
    void layOut();
    void scanLine(int n, int i, Counts &counts);
    void checkText(int n, int i, Counts &counts);
    void counted(Counts &counts);
    void time(int n, int i, Counts &counts, const QString &explanation, bool bare, int repairBox,
              const QString &newTime, const QString &solved, const QString &advice, int row,
              int col);
    void text(int n, int i, Counts &counts, const QString &explanation,
              const QList<std::pair<int, int>> &moves, const QString &solved, const QString &advice,
              int col);
    void finding(int n, int i, const QString &explanation);
    void solution(const QString &kind, int i, const QString &text);
    void summary(const Counts &counts);

    Program &m_program;
    SubtitleDocument &m_document;
    Grid &m_grid;
};

} // namespace kavro::test
