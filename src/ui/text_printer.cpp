#include "ui/text_printer.h"

#include "ui/window_parent.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr double headerLines = 2.5; ///< height of a page's head, in lines

/// Draws onto one page after the other.
class Pages
{
public:
    Pages(QPrinter &printer, QPainter &painter, const QString &title)
        : m_printer(printer), m_painter(painter), m_title(title), m_area(painter.viewport())
    {
        beginPage();
    }

    void draw(const QString &line)
    {
        constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;
        const QRect room(m_area.left(), 0, m_area.width(), m_area.height());
        const int height = std::max(m_painter.boundingRect(room, flags, line).height(),
                                    m_painter.fontMetrics().lineSpacing());
        if (m_top + height > m_area.bottom()) {
            m_printer.newPage();
            beginPage();
        }
        m_painter.drawText(QRect(m_area.left(), m_top, m_area.width(), height), flags, line);
        m_top += height;
    }

    [[nodiscard]] int count() const { return m_number; }

private:
    void beginPage()
    {
        ++m_number;
        const int line = m_painter.fontMetrics().lineSpacing();
        const QRect head(m_area.left(), m_area.top(), m_area.width(), line);
        m_painter.drawText(head, Qt::AlignLeft, m_title);
        m_painter.drawText(head, Qt::AlignRight, QString::number(m_number));
        m_painter.drawLine(head.bottomLeft() + QPoint(0, line / 2),
                           head.bottomRight() + QPoint(0, line / 2));
        m_top = m_area.top() + static_cast<int>(headerLines * line);
    }

    QPrinter &m_printer;
    QPainter &m_painter;
    QString m_title;
    QRect m_area;
    int m_top = 0;
    int m_number = 0;
};

} // namespace

int printLines(QPrinter &printer, const QString &title, const QStringList &lines)
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        return 0;
    }
    Pages pages(printer, painter, title);
    for (const QString &line : lines) {
        pages.draw(line);
    }
    return pages.count();
}

bool TextPrinter::print(const QString &title, const QStringList &lines)
{
    QPrinter printer;
    printer.setDocName(title);
    QPrintDialog dialog(&printer, windowParent());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    return dialog.exec() == QDialog::Accepted && printLines(printer, title, lines) > 0;
}

} // namespace kavro
