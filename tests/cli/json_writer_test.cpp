#include "cli/json_writer.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(JsonWriter, KeepsTheOrderAndSeparatesAtEveryLevel)
{
    JsonWriter json;
    json.beginObject().text(u"z", u"last").number(u"a", -9);
    json.key(u"list").beginArray().beginArray().endArray().null().boolean(true);
    json.beginObject().endObject().endArray();
    json.key(u"texts").texts(QStringList{u"x"_s, QString()}).endObject();
    EXPECT_EQ(json.bytes().toStdString(),
              R"({"z": "last", "a": -9, "list": [[], null, true, {}], "texts": ["x", ""]})");
}

TEST(JsonWriter, EscapesTexts)
{
    const std::pair<QString, const char *> cases[] = {
        {u"a\"b\\c"_s, R"("a\"b\\c")"},
        {u"\r\n\tx"_s, R"("\r\n\tx")"},
        {u"\u0001\u001f\u007f"_s, "\"\\u0001\\u001f\x7f\""},
        {u"é😀"_s, "\"é😀\""},
        {QString(QChar(0xD83D)) + u'x', R"("\ud83dx")"}, // halves of a pair alone
        {u'x' + QString(QChar(0xDE00)), R"("x\ude00")"},
    };
    for (const auto &[text, escaped] : cases) {
        JsonWriter json;
        json.text(text);
        EXPECT_EQ(json.bytes().toStdString(), escaped);
        const QByteArray array = '[' + json.bytes() + ']';
        EXPECT_EQ(QJsonDocument::fromJson(array).array().at(0).toString(), text);
    }
}

TEST(JsonWriter, NumbersHaveNoExponent)
{
    JsonWriter json;
    json.beginArray().number(0.5).number(1e15).number(-0.0000001).number(12).endArray();
    EXPECT_EQ(json.bytes().toStdString(), "[0.5, 1000000000000000, -0.0000001, 12]");
}

} // namespace
} // namespace kavro
