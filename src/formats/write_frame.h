#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <span>

namespace kavro {

class LanguageTable;
class SubtitleDocument;

/// What a format's writer works through: the row that it stands on, with its times made relative to
/// the file that is made, and the text of that file.
class WriteFrame
{
public:
    /// Both are borrowed and outlive the frame.
    WriteFrame(const SubtitleDocument &document, const LanguageTable &language);

    /// Begins a file that starts at `partOffset` on the document's time line.
    void startFile(const QString &partOffset);
    /// Goes to a row of the document; `outNumber` rises by one.
    void moveTo(int row);

    // The row.

    /// The running number of the subtitle in its file, from 1.
    [[nodiscard]] int outNumber() const { return m_outNumber; }
    [[nodiscard]] const QString &start() const { return m_start; }
    [[nodiscard]] const QString &end() const { return m_end; }
    /// The trimmed text lines that aren't empty; the first empty column behind the first one ends
    /// them. Valid until the next `moveTo`.
    [[nodiscard]] std::span<const QStringView> lines() const;
    /// True when text stands behind the empty column that ends the lines.
    [[nodiscard]] bool hasTextBehindGap() const { return m_textBehindGap; }
    [[nodiscard]] bool isBold() const { return m_bold; }
    [[nodiscard]] bool isItalic() const { return m_italic; }

    // What writers ask the program.

    [[nodiscard]] double frameRate() const { return m_frameRate; }
    /// Name of the font that is selected for the file.
    [[nodiscard]] QString selectedFont() const;

    // The file. Its lines end with CR LF.

    void put(QStringView text) { m_text += text; }
    void endLine() { m_text += QStringView(u"\r\n"); }
    void writeLine(QStringView line);
    void writeLines(std::span<const QStringView> lines);
    /// Puts the text lines with `separator` between them.
    void putLines(QStringView separator);

    /// Puts a question mark for halves of surrogate pairs.
    void replaceHalves();

    [[nodiscard]] QStringView text() const { return m_text; }

private:
    void findLines(int row);
    void findStyle(const QString &fontEntry);

    const SubtitleDocument &m_document;
    double m_frameRate;
    QString m_boldWord;
    QString m_italicWord;
    QString m_text; ///< kept from file to file for its memory
    QString m_partOffset;
    int m_outNumber = 0;
    QString m_start;
    QString m_end;
    std::array<QStringView, 3> m_lines; ///< of the grid's cells, which stay while a file is written
    std::size_t m_lineCount = 0;
    QString m_fontEntry; ///< that bold and italic were found in
    bool m_textBehindGap = false;
    bool m_bold = false;
    bool m_italic = false;
};

} // namespace kavro
