#include "tools/row_range.h"

#include "controls/control.h"
#include "core/document.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/text.h"
#include "core/time_page.h"

#include <QStringBuilder>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastRow = std::numeric_limits<qint16>::min();
constexpr int greatestRow = std::numeric_limits<qint16>::max();

/// A number beyond those of rows stays one: it comes out as the next to the least or the greatest.
int rowOf(const TextBox &field)
{
    const double number = std::clamp(Val(field.text()), leastRow - 1.0, greatestRow + 1.0);
    return static_cast<int>(std::lround(number));
}

} // namespace

RowRange rangeOf(const SubtitleDocument &document, RangeFields fields)
{
    const int first = static_cast<int>(fields);
    return {.first = rowOf(document.times.Text1[first]),
            .last = rowOf(document.times.Text1[first + 1])};
}

void stepRange(SubtitleDocument &document, RangeFields fields, Label &number)
{
    const bool further = document.curNode < document.nodeCount;
    document.curNode = further ? document.curNode + 1 : 0;
    const Node &node = document.nodes[static_cast<std::size_t>(document.curNode)];
    const int first = static_cast<int>(fields);
    document.times.Text1[first].setText(QString::number(node.firstRow));
    document.times.Text1[first + 1].setText(QString::number(node.lastRow));
    number.setCaption(QString::number(document.curNode));
}

QString rangeDetail(const SubtitleDocument &document, const LanguageTable &language)
{
    const Grid &grid = document.editor.grdSubEdit;
    return language.ownText(u"[Range: %1 to %2]"_s)
        .arg(grid.text(1, StartColumn), grid.text(grid.rows() - 2, StartColumn));
}

bool checkRange(const SubtitleDocument &document, const RowRange &range, int lastRow,
                Messages &messages, const LanguageTable &language)
{
    const bool holdsRows = range.first <= range.last;
    if (holdsRows ? range.first >= 1 && range.last <= lastRow
                  : range.last >= leastRow && range.first <= greatestRow)
    {
        return true;
    }
    const int lines = document.subtitleCount();
    showRefusal(lines == 0 ? u"The document has no line."_s
                           : u"The first and the last line of the range must lie in 1 to %1."_s,
                {QString::number(lines)}, messages, language);
    return false;
}

void showRefusal(const QString &pattern, const QStringList &values, Messages &messages,
                 const LanguageTable &language)
{
    messages.ShowMessage({pattern % u"/nNothing was changed.", values}, Answer::Ok, u"ok"_s,
                         language.text(LangGroup::Report, 13));
}

} // namespace kavro
