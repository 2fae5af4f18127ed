#include "controls/text_box.h"

#include <algorithm>

namespace kavro {

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
    setText(text);
    emit typed(m_text);
}

} // namespace kavro
