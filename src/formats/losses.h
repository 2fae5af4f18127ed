#pragma once

#include <QStringList>
#include <QStringView>

namespace kavro {

class LanguageTable;
class WriteFrame;
struct FormatInfo;

/// Counts what a format can't hold of the subtitles that are written in it.
class Losses
{
public:
    /// `format` outlives the count.
    explicit Losses(const FormatInfo &format) : m_format(format) {}

    /// Looks at the subtitle that the frame stands on.
    void add(const WriteFrame &frame);

    /// One line for each kind of loss, in the person's language; empty when nothing was lost.
    [[nodiscard]] QStringList lines(const LanguageTable &language) const;

private:
    [[nodiscard]] bool losesSign(QStringView code) const;
    [[nodiscard]] bool losesHours(QStringView code) const;
    [[nodiscard]] bool losesMilliseconds(QStringView code, double frameRate) const;

    const FormatInfo &m_format;
    int m_milliseconds = 0; ///< subtitles, as in the rest
    int m_hours = 0;
    int m_signs = 0;
    int m_texts = 0;
    int m_styles = 0;
};

} // namespace kavro
