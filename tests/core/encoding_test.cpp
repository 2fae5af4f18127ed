#include "core/encoding.h"

#include <QStringDecoder>

#include <gtest/gtest.h>

#include <string>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

QByteArray encoded(const char *name, const QString &text)
{
    TextEncoder encoder(*encodingByName(QString::fromLatin1(name)));
    QByteArray bytes;
    EXPECT_TRUE(encoder.append(text, bytes)) << name;
    return bytes;
}

/// Found for bytes that come in pieces of `piece`.
std::string found(const QByteArray &bytes, const QByteArray &codePage = {},
                  qsizetype piece = 1 << 20)
{
    EncodingDetector detector(codePage);
    for (qsizetype at = 0; at == 0 || at < bytes.size(); at += piece)
        detector.feed(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)));
    const TextEncoding encoding = detector.finish();
    return encoding.name.toStdString() + (encoding.bom ? "+" : "");
}

const QString russian = u"Привет, мир! Сегодня хорошая погода, и мы идём гулять в парк.\r\n"
                        u"Завтра будет новый день, и все вернутся на работу вовремя.\r\n"_s;
const QString greek = u"Καλημέρα κόσμε, τι κάνεις σήμερα; Πάμε μια βόλτα στη θάλασσα.\r\n"_s;
const QString hebrew = u"שלום עולם, מה שלומך היום? אנחנו הולכים לטייל ליד הים הגדול.\r\n"_s;
const QString japanese =
    u"こんにちは、世界。今日はとても天気がいいので、公園へ散歩に行きます。\r\n"_s;
const QString korean = u"안녕하세요, 세계. 오늘은 날씨가 좋아서 공원에 산책하러 갑니다.\r\n"_s;
const QString chinese = u"你好，世界。今天天气很好，我们去公园散步吧。明天再见，我的朋友。\r\n"_s;

TEST(Encoding, BytesDecide)
{
    const QByteArray accents = u"déjà vu"_s.toUtf8();
    const struct
    {
        const char *name;
        QByteArray bytes;
        const char *result;
    } rows[] = {
        {"no bytes", "", "UTF-8"},
        {"ASCII", "abc\n", "UTF-8"},
        {"UTF-8", accents, "UTF-8"},
        {"UTF-8 with mark", "\xEF\xBB\xBF" + accents, "UTF-8+"},
        {"a mark ahead of other bytes", "\xEF\xBB\xBF\xE9", "UTF-8+"},
        {"UTF-16 little", QByteArray("\xFF\xFEx\0", 4), "UTF-16LE+"},
        {"UTF-16 big", QByteArray("\xFE\xFF\0x", 4), "UTF-16BE+"},
        {"UTF-32 little", QByteArray("\xFF\xFE\0\0", 4), "UTF-32LE+"},
        {"UTF-32 big", QByteArray("\0\0\xFE\xFF", 4), "UTF-32BE+"},
        {"a cut sequence at the end", "d\xC3\xA9j\xC3", "Windows-1252"},
        {"accents of Latin 1", "tr\xE8s s\xFBr, monsieur\r\n", "Windows-1252"},
        {"the euro sign", "100 \x80\r\n", "Windows-1252"},
        {"Russian", encoded("Windows-1251", russian), "Windows-1251"},
        {"Russian, KOI8", encoded("KOI8-R", russian.repeated(3)), "KOI8-R"},
        {"Greek", encoded("Windows-1253", greek.repeated(3)), "Windows-1253"},
        {"Hebrew", encoded("Windows-1255", hebrew.repeated(3)), "Windows-1255"},
        {"Japanese", encoded("Shift_JIS", japanese), "Shift_JIS"},
        {"Japanese, EUC", encoded("EUC-JP", japanese), "EUC-JP"},
        {"Korean", encoded("EUC-KR", korean), "Windows-949"},
        {"Chinese", encoded("GB18030", chinese), "GB18030"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(found(row.bytes), row.result) << row.name;
        EXPECT_EQ(found(row.bytes, {}, 5), row.result) << row.name << " in pieces";
    }
}

TEST(Encoding, SettingDecidesBytesThatAreNotUtf8)
{
    const QByteArray bytes = encoded("Windows-1251", russian);
    EXPECT_EQ(found(bytes, "Windows-1255"), "Windows-1255");
    EXPECT_EQ(found(russian.toUtf8(), "Windows-1255"), "UTF-8");
    EXPECT_EQ(found("d\xC3", "Windows-1255"), "Windows-1255");
    EXPECT_EQ(found("an overlong form: \xC0\xA9", "Windows-1255"), "Windows-1255");
    EXPECT_EQ(found("half a pair: \xED\xA0\x80", "Windows-1255"), "Windows-1255");
}

TEST(Encoding, CharacterSetsNameCodePagesThatCanBeRead)
{
    for (const int set : {0, 77, 161, 162, 177, 178, 186, 204, 238, 255}) {
        const QByteArray page = codePageOfCharacterSet(set);
        ASSERT_TRUE(encodingByName(QString::fromLatin1(page))) << set;
        EXPECT_EQ(encodingByName(QString::fromLatin1(page))->name, page);
    }
    EXPECT_EQ(codePageOfCharacterSet(204), "Windows-1251");
    EXPECT_EQ(codePageOfCharacterSet(2), ""); // Symbol is no alphabet
}

TEST(Encoding, NamesAreMetInAnyForm)
{
    const struct
    {
        QStringView name;
        const char *result;
    } rows[] = {
        {u"utf-8", "UTF-8"},         {u"UTF8", "UTF-8"},
        {u"utf-8-sig", "UTF-8 BOM"}, {u"utf-16", "UTF-16LE"},
        {u"CP1251", "Windows-1251"}, {u"windows 1251", "Windows-1251"},
        {u"latin1", "Windows-1252"}, {u"iso-8859-1", "Windows-1252"},
        {u"shift-jis", "Shift_JIS"}, {u"gbk", "GB18030"},
        {u"euc-kr", "Windows-949"},  {u"ibm850", "IBM850"},
    };
    for (const auto &row : rows) {
        const auto encoding = encodingByName(row.name);
        ASSERT_TRUE(encoding) << row.result;
        EXPECT_EQ(encodingText(*encoding).toStdString(), row.result);
    }
    EXPECT_FALSE(encodingByName(u"klingon"));
    EXPECT_FALSE(encodingByName(u""));
    EXPECT_TRUE(encodingByName(u"UTF-16BE")->bom);
}

TEST(Encoding, EachOfTheListReadsAndWrites)
{
    for (const EncodingEntry &entry : textEncodings()) {
        const auto encoding = encodingByName(QString::fromLatin1(entry.name));
        ASSERT_TRUE(encoding) << entry.name;
        EXPECT_EQ(encoding->name, entry.name);
        TextEncoder encoder(*encoding);
        QByteArray bytes;
        EXPECT_TRUE(encoder.append(u"00:01 --> [br]{1}\r\n", bytes)) << entry.name;
        QStringDecoder decoder(entry.name);
        const QString back = decoder.decode(bytes);
        EXPECT_EQ(back, u"00:01 --> [br]{1}\r\n"_s) << entry.name;
    }
}

TEST(Encoding, WritesInPiecesWithOneMark)
{
    const QString smile = QString::fromUcs4(U"\U0001F600");
    TextEncoder encoder({.name = "UTF-16BE", .bom = true});
    QByteArray bytes;
    EXPECT_TRUE(encoder.append(smile.first(1), bytes)); // a pair cut between two calls
    EXPECT_TRUE(encoder.append(smile.last(1), bytes));
    EXPECT_EQ(bytes.toHex().toStdString(), "feffd83dde00");

    TextEncoder plain({.name = "UTF-8", .bom = false});
    bytes.clear();
    EXPECT_TRUE(plain.append(u"é", bytes));
    EXPECT_EQ(bytes, "\xC3\xA9");
}

TEST(Encoding, TellsWhatItCannotHold)
{
    const QString smile = QString::fromUcs4(U"\U0001F600");
    const struct
    {
        const char *name;
        QString text;
        bool held;
    } rows[] = {
        {"Windows-1252", u"plain"_s, true},   {"Windows-1252", u"naïve €"_s, true},
        {"Windows-1252", u"Привет"_s, false}, {"Windows-1251", u"Привет"_s, true},
        {"Windows-1252", smile, false},       {"GB18030", smile, true},
        {"Shift_JIS", u"é"_s, false},         {"UTF-8", smile, true},
        {"UTF-8", smile.first(1), false},     {"Windows-1252", u"ā"_s, false}, // no "a" instead
    };
    for (const auto &row : rows) {
        EncodingCheck check({.name = row.name});
        EXPECT_EQ(check.holds(row.text), row.held) << row.name << ' ' << row.text.toStdString();
    }
    EncodingCheck check({.name = "Windows-1252"});
    EXPECT_FALSE(check.holds(u"дом"));
    EXPECT_FALSE(check.holds(u"дом")) << "a fault stays a fault";
    EXPECT_TRUE(check.holds(u"été")) << "one text's fault is not the next one's";
}

} // namespace
} // namespace kavro
