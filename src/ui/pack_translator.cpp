#include "ui/pack_translator.h"

#include <QCoreApplication>

namespace kavro {

PackTranslator::PackTranslator(const QHash<QString, QString> &texts) : m_texts(texts)
{
    QCoreApplication::installTranslator(this);
}

QString PackTranslator::translate(const char *, const char *sourceText, const char *, int) const
{
    const QString text = m_texts.value(QString::fromUtf8(sourceText));
    return text.isEmpty() ? QString() : text;
}

} // namespace kavro
