#pragma once

#include "core/encoding.h"
#include "formats/create_subfile.h"
#include "formats/losses.h"
#include "formats/write_frame.h"

#include <QString>

namespace kavro {

class SubtitleFormat;

/// One run of the write path over all its output files.
class WriteRun
{
public:
    WriteRun(SubtitleWriter &writer, const SubtitleWriter::Parts &parts,
             const WriteRequest &request);

    WriteResult run();

private:
    using Kind = WriteResult::Kind;

    /// True while the run goes on with the next file.
    bool writeFile(int number);
    [[nodiscard]] QString pathOf(int number) const;
    [[nodiscard]] QString partLength(int number) const;

    void makeText(const QString &path);
    /// False when the person ends the file at a time before it.
    bool acceptsNegativeTime(const QString &path);
    void showProgress();

    /// True when the text can be written, if need be as UTF-8.
    bool chooseEncoding(const QString &path);
    bool save(const QString &path);
    void takeName(const QString &path);
    void tellRowsLeft();
    void tellLosses();

    bool cancel(const QString &reason);
    bool fail(const QString &description);
    [[nodiscard]] const QString &report(int item) const;

    SubtitleWriter &m_writer;
    const SubtitleWriter::Parts &m_parts;
    const WriteRequest &m_request;
    const FormatInfo *m_info; ///< nullptr when no format was chosen
    const SubtitleFormat *m_format = nullptr;
    std::optional<Losses> m_losses; ///< of the file that is made
    WriteFrame m_frame;
    WriteResult m_result;
    TextEncoding m_encoding;
    QString m_partOffset; ///< start of the file on the document's time line
    QString m_partEnd;    ///< a row that doesn't end before it belongs to the next file
    int m_row;            ///< the next row; goes on from file to file
    int m_lastRow;
};

} // namespace kavro
