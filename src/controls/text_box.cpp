#include "controls/text_box.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

void TextBox::setText(const QString &text)
{
    if (m_text == text) {
        return;
    }
    m_text = text;
    m_selStart = std::min(m_selStart, m_text.size());
    m_selLength = std::min(m_selLength, m_text.size() - m_selStart);
    emit textChanged(m_text);
}

void TextBox::setBold(bool bold)
{
    if (m_bold != bold) {
        m_bold = bold;
        emit fontChanged();
    }
}

void TextBox::setItalic(bool italic)
{
    if (m_italic != italic) {
        m_italic = italic;
        emit fontChanged();
    }
}

void TextBox::setSelection(qsizetype start, qsizetype length)
{
    m_selStart = std::clamp<qsizetype>(start, 0, m_text.size());
    m_selLength = std::clamp<qsizetype>(length, 0, m_text.size() - m_selStart);
    emit selectionChanged();
}

void TextBox::type(const QString &text)
{
    QString line = text;
    line.replace("\r\n"_L1, " "_L1).replace(u'\r', u' ').replace(u'\n', u' ');
    setText(line);
    emit typed(m_text);
}

} // namespace kavro
