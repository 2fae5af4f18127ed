#include "core/messages.h"

#include "controls/form.h"
#include "core/action_trace.h"
#include "core/language.h"
#include "core/macro_variables.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

class Window : public MessageWindow
{
public:
    MessageReply show(const Message &message) override
    {
        shown = message;
        if (during) {
            during();
        }
        return reply;
    }

    Message shown;
    MessageReply reply;
    std::function<void()> during;
};

class MessagesTest : public testing::Test
{
protected:
    Answer ask(const QString &kind, Answer reply)
    {
        window.reply.answer = reply;
        return messages.ShowMessage(u"?"_s, Answer::Yes, kind, u"Title"_s);
    }

    /// What an input window leaves when this is typed and OK pressed.
    void enter(const QString &name, const QString &value)
    {
        window.reply = {.answer = Answer::Ok, .inputName = name, .inputValue = value};
        messages.ShowMessage(u"?"_s, Answer::Ok, u"okcancel"_s, u"Input"_s, true);
    }

    Form form{u"frmMessageBox"_s};
    Window window;
    ActionTrace trace;
    MacroVariables variables;
    LanguageTable language;
    Messages messages{form, window, language, trace, variables};
};

TEST_F(MessagesTest, OnlyTheTemplateIsExpanded)
{
    messages.expandVariables = [](QString text) {
        return text.replace(u"sysVar[1]"_s, u"/films/nora"_s);
    };
    const struct
    {
        const char *name;
        MessageText text;
        QStringView shown;
    } rows[] = {
        {"line breaks and variables", u"a/nb sysVar[1]"_s, u"a\r\nb /films/nora"},
        {"a path",
         {u"File '%1'/nis there."_s, {u"/films/nora/new.srt"_s}},
         u"File '/films/nora/new.srt'\r\nis there."},
        {"a variable's name in a value", {u"%1"_s, {u"sysVar[1]"_s}}, u"sysVar[1]"},
        {"a place in a value", {u"%1 and %2"_s, {u"%2"_s, u"%1"_s}}, u"%2 and %1"},
        {"in any order, twice", {u"%2%1%2"_s, {u"a"_s, u"b"_s}}, u"bab"},
        {"per cent of its own", u"100% of %1, 5%"_s, u"100% of %1, 5%"},
        {"a place without a value", {u"%1 %2 %0"_s, {u"a"_s}}, u"a %2 %0"},
    };
    for (const auto &row : rows) {
        messages.ShowMessage(row.text, Answer::Ok, u"ok"_s, {});
        EXPECT_EQ(window.shown.text, row.shown.toString()) << row.name;
        EXPECT_EQ(messages.Label1.caption(), window.shown.text) << row.name;
    }
}

TEST_F(MessagesTest, KindAndDefaultPlaceTheButtons)
{
    const struct
    {
        QStringView kind;
        Answer defaultButton;
        const char *buttons; ///< cancel, ok, no, yes
        const char *markers;
    } rows[] = {
        {u"yesnocancel", Answer::Yes, "+-++", "---+"},
        {u"ok", Answer::Ok, "-+--", "-+--"},
        {u"OkCancel", Answer::Cancel, "++--", "+---"},
        {u"yesno", Answer::Ok, "--++", "-+--"},
        {u"", Answer::No, "----", "--+-"},
    };
    for (const auto &row : rows) {
        std::string buttons, markers;
        window.during = [&] {
            EXPECT_TRUE(form.isOpen());
            for (int i = 0; i < 4; ++i) {
                buttons += messages.cmdAction[i].isVisible() ? '+' : '-';
                markers += messages.Picture1[i].isVisible() ? '+' : '-';
            }
        };
        messages.ShowMessage(u"?"_s, row.defaultButton, row.kind.toString(), u"Title"_s);
        EXPECT_EQ(buttons, row.buttons) << row.kind.toString().toStdString();
        EXPECT_EQ(markers, row.markers) << row.kind.toString().toStdString();
        EXPECT_FALSE(form.isOpen());
    }
    EXPECT_EQ(messages.Label4.caption(), u"Title"_s);
    EXPECT_EQ(trace.lastActionCode, 30);
}

TEST_F(MessagesTest, AnswersAreOffered)
{
    const struct
    {
        QStringView kind;
        Answer reply, answer;
    } rows[] = {
        {u"yesnocancel", Answer::Yes, Answer::Yes}, {u"yesno", Answer::No, Answer::No},
        {u"yesno", Answer::Cancel, Answer::No}, // a window that was closed is no yes
        {u"ok", Answer::Yes, Answer::Ok},           {u"okcancel", Answer::No, Answer::Cancel},
        {u"", Answer::Yes, Answer::Cancel},
    };
    for (const auto &row : rows) {
        trace.macroRunning = true;
        EXPECT_EQ(ask(row.kind.toString(), row.reply), row.answer)
            << row.kind.toString().toStdString();
        EXPECT_EQ(messages.msgResult, row.answer);
        EXPECT_EQ(trace.macroRunning, row.answer != Answer::Cancel); // which stops a macro
    }
}

TEST_F(MessagesTest, ClickDuringTheMessageCountsAsItsReply)
{
    window.during = [this] { messages.cmdAction[2].click(); };
    EXPECT_EQ(ask(u"yesno"_s, Answer::Yes), Answer::No);

    window.during = [this] {
        messages.txtInput[0].type(u"a"_s);
        messages.txtInput[1].type(u"1"_s);
        messages.cmdAction[1].click();
    };
    enter(u"b"_s, u"2"_s);
    EXPECT_EQ(variables.mcrVar[1], u"a:=1"_s);
    EXPECT_EQ(variables.mcrVar[2], QString());
}

TEST_F(MessagesTest, MessageWithinAMessageHasItsOwnAnswer)
{
    Answer inner = Answer::Cancel;
    window.during = [&] {
        window.during = nullptr;
        inner = ask(u"yesno"_s, Answer::No);
        window.reply.answer = Answer::Yes;
    };
    EXPECT_EQ(messages.ShowMessage(u"outer"_s, Answer::Yes, u"yesno"_s, {}), Answer::Yes);
    EXPECT_EQ(inner, Answer::No);
}

TEST_F(MessagesTest, InputFieldsAreShownWhenAskedFor)
{
    variables.mcrVar[1] = u"x:=1"_s;
    window.during = [this] {
        EXPECT_TRUE(messages.txtInput[1].isVisible());
        EXPECT_EQ(messages.txtInput[0].text(), u"mcrVar[2]"_s); // the first that is free
        EXPECT_EQ(messages.txtInput[1].text(), QString());
    };
    enter(u"y"_s, u"2"_s);
    EXPECT_TRUE(variables.macroInput);
    window.during = nullptr;
    ask(u"ok"_s, Answer::Ok);
    EXPECT_FALSE(variables.macroInput);
    EXPECT_FALSE(messages.txtInput[0].isVisible());
    EXPECT_FALSE(messages.Label2[1].isVisible());
}

TEST_F(MessagesTest, InputGoesToAVariable)
{
    int refreshed = 0;
    messages.variablesChanged = [&] { ++refreshed; };
    variables.mcrVar[0] = u"zero:=0"_s;
    const struct
    {
        const char *name;
        QStringView input, value;
        int index;
        QStringView variable;
    } rows[] = {
        {"named", u" Foo ", u" Bar ", 1, u"Foo:=Bar"},
        {"a second one", u"fo", u"1", 2, u"fo:=1"},
        {"the same in another case", u"FOO", u"2", 1, u"FOO:=2"},
        {"without a name", u"  ", u"3", 3, u"mcrVar[3]:=3"},
        {"without a value", u"foo", u" ", 1, u"FOO:=2"},
    };
    for (const auto &row : rows) {
        enter(row.input.toString(), row.value.toString());
        EXPECT_EQ(variables.mcrVar[static_cast<std::size_t>(row.index)], row.variable.toString())
            << row.name;
    }
    EXPECT_EQ(refreshed, 4);
    EXPECT_EQ(variables.mcrVar[4], QString());

    for (std::size_t i = 4; i <= 100; ++i) {
        variables.mcrVar[i] = u"full:=1"_s;
    }
    enter({}, u"lost"_s);
    EXPECT_EQ(refreshed, 4);
    EXPECT_EQ(variables.mcrVar[0], u"zero:=0"_s);
}

} // namespace
} // namespace kavro
