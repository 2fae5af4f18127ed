#pragma once

#include <QHash>
#include <QString>
#include <QTranslator>

namespace kavro {

/// Gives `tr` the texts of the language pack. It counts as long as it lives.
class PackTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// @param texts  by the English text; borrowed, and may be filled later
    explicit PackTranslator(const QHash<QString, QString> &texts);

    [[nodiscard]] bool isEmpty() const override { return false; }
    /// Null where the pack has no text: the English one stands.
    [[nodiscard]] QString translate(const char *context, const char *sourceText,
                                    const char *disambiguation, int count) const override;

private:
    const QHash<QString, QString> &m_texts;
};

} // namespace kavro
