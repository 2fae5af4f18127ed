#pragma once

#include <QHash>
#include <QString>

#include <array>

namespace kavro {

/// Groups of the language table.
enum class LangGroup {
    Preview = 0,
    CopyFirst = 1,  ///< captions of the first copy button, by target
    CopySecond = 2, ///< captions of the second copy button
    Player = 3,
    Common = 4,
    User = 5,
    File = 6,
    Variables = 7,
    About = 8,
    Report = 9 ///< what loads and saves report in the control window
};

/// Every text that code uses, by group and item, with a tool tip beside it. English until a pack
/// replaces it.
class LanguageTable
{
public:
    static constexpr int groups = 10;
    static constexpr int items = 51;

    LanguageTable() { SetDefaultTexts(); }

    /// Fills both tables with the built-in English texts.
    void SetDefaultTexts();

    /// Empty for an item outside 0 to 50.
    [[nodiscard]] const QString &text(LangGroup group, int item) const;
    [[nodiscard]] const QString &tip(LangGroup group, int item) const;
    /// Nothing for an item outside 0 to 50.
    void setText(LangGroup group, int item, const QString &text);
    void setTip(LangGroup group, int item, const QString &tip);

    /// What a pack says for a text that has no place in the groups: a message, a fault, a note.
    /// The English text itself where no pack has one.
    [[nodiscard]] QString ownText(const QString &english) const;

    QHash<QString, QString> ownTexts; ///< texts outside the groups, by the English ones

    QString languageName = QStringLiteral("English");
    QString languageAuthor;
    QString languageFolder = QStringLiteral("English"); ///< folder of the help pages

private:
    using Table = std::array<std::array<QString, items>, groups>;

    Table m_texts;
    Table m_tips;
};

} // namespace kavro
