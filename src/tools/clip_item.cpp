#include "tools/clip_item.h"

#include "core/paths.h"

#include <QStringBuilder>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// What stands ahead of the first `end`, the whole text where there is none; `text` becomes what
/// stands behind it.
QStringView takeField(QStringView &text, QChar end)
{
    const qsizetype at = text.indexOf(end);
    const QStringView field = at < 0 ? text : text.first(at);
    text = at < 0 ? QStringView() : text.sliced(at + 1);
    return field;
}

} // namespace

ClipItem::ClipItem(QStringView item)
{
    const qsizetype mark = item.indexOf(u'>');
    const QStringView before = mark < 0 ? QStringView() : item.first(mark);
    name = before.isEmpty() ? u"Not defined"_s : nameOf(before).toString();
    QStringView value = mark < 0 ? QStringView() : item.sliced(mark + 1);
    hours = takeField(value, u':').toString();
    minutes = takeField(value, u':').toString();
    seconds = takeField(value, u',').toString();
    fraction = value.toString();
}

QString ClipItem::time(QChar point) const
{
    return hours % u':' % minutes % u':' % seconds % point % fraction;
}

} // namespace kavro
