#pragma once

#include "core/text.h"
#include "formats/create_subfile.h"
#include "formats/format_table.h"
#include "formats/load_subfile.h"
#include "formats/node_file.h"
#include "tests/support/document_fixture.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

namespace kavro::test {

/// Records what a load asks of the rooms above it.
struct RecordedHost : LoadHost
{
    explicit RecordedHost(SubtitleDocument &subtitleDocument) : document(subtitleDocument) {}

    bool openMovie(const QString &path) override
    {
        calls.append(QStringLiteral("movie ") + nameOf(path).toString());
        return plays;
    }
    [[nodiscard]] double movieDuration() const override { return duration; }
    bool saveDocument() override
    {
        calls.append(QStringLiteral("save"));
        return saves;
    }
    void setFileName(const QString &path, int format) override
    {
        document.subFileName = path;
        document.subBaseName = nameOf(path).toString().section(QChar(u'.'), 0, 0);
        calls.append(QStringLiteral("name %1").arg(format));
    }
    void addRecent(const QString &path) override
    {
        calls.append(QStringLiteral("recent ") + nameOf(path).toString());
    }
    void EnableDocumentCommands() override { calls.append(QStringLiteral("enable")); }
    void documentLoaded() override { calls.append(QStringLiteral("loaded")); }

    /// The calls so far, separated by ", ", and forgets them.
    std::string take()
    {
        const std::string all = calls.join(QStringLiteral(", ")).toStdString();
        calls.clear();
        return all;
    }

    SubtitleDocument &document;
    QStringList calls;
    bool plays = true;
    bool saves = true;
    double duration = 0;
};

/// A document with the read path and the write path.
struct FormatsFixture : DocumentFixture
{
    FormatsFixture()
    {
        for (const FormatInfo &info : formatTable()) {
            formats.combo3.addItem(info.name.toString());
        }
        formats.Combo7.setItems(QStringList{QStringLiteral("All Formats")}
                                + formats.combo3.items());
    }

    LoadResult load(const QString &filePath, int format = UnknownFormat)
    {
        request = {.path = filePath, .format = format};
        return loader.LoadSubFile(request);
    }

    /// Adds a file behind the document's rows.
    LoadResult add(const QString &filePath, int format = UnknownFormat)
    {
        request = {.path = filePath, .format = format, .nextRow = editor.grdSubEdit.rows() - 1};
        return loader.LoadSubFile(request);
    }

    /// Writes all rows under a name in the fixture's folder.
    WriteResult save(const QString &name, int format)
    {
        return writer.CreateSubFile(
            {.format = format, .lastRow = document.subtitleCount(), .path = path(name)});
    }

    /// The bytes that the writer of a format makes of all rows.
    std::string written(int format)
    {
        const WriteResult result = save(QStringLiteral("written"), format);
        return result.kind == WriteResult::Kind::Written ? read(result.path) : "(failed)";
    }

    RecordedHost host{document};
    NodeFile nodeFile{document, folders, store, messages, QStringLiteral("4.00")};
    SubtitleWriter writer{SubtitleWriter::Parts{.document = document,
                                                .partition = partition,
                                                .control = control,
                                                .messages = messages,
                                                .language = language,
                                                .folders = folders,
                                                .store = store}};
    SubtitleLoader loader{SubtitleLoader::Parts{.document = document,
                                                .lists = formats,
                                                .menu = menu,
                                                .settings = settings,
                                                .control = control,
                                                .messages = messages,
                                                .language = language,
                                                .folders = folders,
                                                .clock = clock,
                                                .host = host,
                                                .nodeFile = nodeFile}};
    LoadRequest request; ///< of the last load, with what the load changed in it
};

struct ReadCase
{
    int format;
    const char *name;
    QString text;
    const char *rows;
    int skipped = 0;
    const char *font = nullptr; ///< the first row's entry; nullptr for any
};

/// Loads each text as its format and compares rows, skipped lines and font.
inline void expectRows(std::initializer_list<ReadCase> cases)
{
    for (const ReadCase &c : cases) {
        SCOPED_TRACE(formatName(c.format).toStdString() + ": " + c.name);
        FormatsFixture fixture;
        const QString path = fixture.write(QStringLiteral("a"), c.text);
        const LoadResult result = fixture.load(path, c.format);
        EXPECT_EQ(result.kind, LoadResult::Kind::Loaded);
        EXPECT_EQ(fixture.rows(), c.rows);
        EXPECT_EQ(result.skippedLines, c.skipped);
        EXPECT_EQ(fixture.messageWindow.shown.size(), c.skipped > 0 ? 1 : 0);
        if (c.font) {
            EXPECT_EQ(fixture.document.fontEntry(1).toStdString(), c.font);
        }
    }
}

/// `text` with CR LF for each line feed.
inline std::string crlf(const std::string &text)
{
    return QString::fromStdString(text).replace(QChar(u'\n'), QStringLiteral("\r\n")).toStdString();
}

} // namespace kavro::test
