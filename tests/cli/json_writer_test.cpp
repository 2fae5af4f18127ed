#include "cli/json_writer.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

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

struct TextCase
{
    const char *name;
    QString text;
    const char *json;
};

class JsonText : public testing::TestWithParam<TextCase>
{};

TEST_P(JsonText, IsEscaped)
{
    JsonWriter json;
    json.text(GetParam().text);
    EXPECT_EQ(json.bytes().toStdString(), GetParam().json);
    const QByteArray array = '[' + json.bytes() + ']';
    EXPECT_EQ(QJsonDocument::fromJson(array).array().at(0).toString(), GetParam().text);
}

const TextCase textCases[] = {
    {"quotes", u"a\"b\\c"_s, R"("a\"b\\c")"},
    {"lineBreaks", u"\r\n\tx"_s, R"("\r\n\tx")"},
    {"controls", u"\u0001\u001f\u007f"_s, "\"\\u0001\\u001f\x7f\""},
    {"pair", u"é😀"_s, "\"é😀\""},
    {"loneHigh", QString(QChar(0xD83D)) + u'x', R"("\ud83dx")"},
    {"loneLowAtEnd", u'x' + QString(QChar(0xDE00)), R"("x\ude00")"},
};

INSTANTIATE_TEST_SUITE_P(Cases, JsonText, testing::ValuesIn(textCases),
                         [](const auto &one) { return one.param.name; });

TEST(JsonWriter, NumbersHaveNoExponent)
{
    JsonWriter json;
    json.beginArray().number(0.5).number(1e15).number(-0.0000001).number(12).endArray();
    EXPECT_EQ(json.bytes().toStdString(), "[0.5, 1000000000000000, -0.0000001, 12]");
}

} // namespace
} // namespace kavro
