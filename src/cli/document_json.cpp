#include "cli/document_json.h"

#include "app/program.h"
#include "cli/json_writer.h"

namespace kavro {

namespace {

void writeFacts(JsonWriter &json, const Program &program)
{
    const SubtitleDocument &document = program.document;
    json.text(u"file", document.subFileName);
    json.number(u"format", document.curFormatId);
    json.text(u"formatName", formatName(document.curFormatId));
    json.text(u"encoding", QString::fromLatin1(document.encoding.name));
    json.text(u"frameRate", document.frameRate);
    json.text(u"fontName", document.curFontName);
    json.boolean(u"fileChanged", document.fileChanged());
    json.boolean(u"subtitleChanged", document.subtitleChanged);
    json.boolean(u"macroRunning", program.trace.macroRunning);
    json.number(u"errorCount", document.errorCount);
}

void writeRows(JsonWriter &json, const Program &program)
{
    const QList<GridRow> &rows = program.editor.grdSubEdit.allRows();
    const qsizetype end = rows.size() - 1;
    json.key(u"rows").beginArray();
    for (qsizetype row = 1; row < end; ++row)
        json.texts(rows[row]);
    json.endArray();
    json.key(u"endRow").texts(rows[end]);
    json.key(u"fonts").texts(program.editor.lstFont.items());
}

void writeErrors(JsonWriter &json, const SubtitleDocument &document)
{
    json.key(u"errors").beginObject();
    for (int row = 0; row <= SubtitleDocument::maxSubtitles; ++row) {
        const QString error = document.rowErrorText(row);
        if (!error.isEmpty())
            json.text(QString::number(row), error);
    }
    json.endObject();
}

void writeNodes(JsonWriter &json, const SubtitleDocument &document)
{
    json.key(u"nodes").beginArray();
    for (int number = 0; number <= document.nodeCount; ++number) {
        const Node &node = document.nodes[static_cast<std::size_t>(number)];
        json.beginObject().text(u"name", node.name);
        json.number(u"first", node.firstRow).number(u"last", node.lastRow);
        json.boolean(u"flag", node.flag).endObject();
    }
    json.endArray();
    json.number(u"curNode", document.curNode);
}

void writePlace(JsonWriter &json, const Program &program)
{
    const Grid &grid = program.editor.grdSubEdit;
    json.number(u"row", grid.row()).number(u"col", grid.col()).number(u"topRow", grid.topRow());
    json.number(u"curRow", program.document.curRow);
    json.number(u"searchIndex", program.document.searchIndex);
    json.number(u"scriptTime", program.document.scriptTime);
}

void writeBack(JsonWriter &json, const Grid &grid)
{
    json.key(u"back").beginArray();
    for (const auto &[row, col] : grid.coloredCells()) {
        json.beginArray().number(row).number(col);
        json.text(grid.cellColor(row, col).text()).endArray();
    }
    json.endArray();
}

void writeLists(JsonWriter &json, const Program &program)
{
    const QList<GridRow> &parts = program.partition.grid.allRows();
    json.key(u"partition").beginArray();
    for (qsizetype row = 1; row < parts.size() - 1; ++row)
        json.texts(parts[row]);
    json.endArray();
    json.key(u"clipboard").texts(program.clipboard.List1.items());
    json.key(u"history").texts(program.history.List1.items());
    json.key(u"recent").texts(program.navigation.Combo13.items());
}

} // namespace

void writeDocument(JsonWriter &json, const Program &program)
{
    json.beginObject();
    writeFacts(json, program);
    writeRows(json, program);
    writeErrors(json, program.document);
    writeNodes(json, program.document);
    writePlace(json, program);
    writeBack(json, program.editor.grdSubEdit);
    writeLists(json, program);
    json.key(u"lastAction").beginObject().text(u"text", program.trace.lastActionText);
    json.number(u"code", program.trace.lastActionCode).endObject();
    json.endObject();
}

} // namespace kavro
