#include "controls/form.h"

#include "controls/control_array.h"
#include "controls/text_box.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace kavro {
namespace {

TEST(Form, FindsControlsByNameInAnyCase)
{
    Form form(u"frmMain"_s);
    ControlArray<CheckBox, 2, 4> checks(form, u"Check3"_s);
    Button button(form, u"Command13"_s);

    EXPECT_EQ(form.control(u"command13"), &button);
    EXPECT_EQ(form.control(u"CHECK3(4)"), &checks[4]);
    for (const QStringView name : {u"Check3", u"Check3(5)", u"Check3(02)", u"Command13(0)", u""}) {
        EXPECT_EQ(form.control(name), nullptr) << name.toString().toStdString();
    }
    EXPECT_EQ(form.array(u"check3"), (QList<Control *>{&checks[2], &checks[3], &checks[4]}));
    EXPECT_EQ(form.array(u"Command13"), (QList<Control *>{&button}));
    EXPECT_EQ(checks[3].fullName(), u"frmMain.Check3(3)"_s);
}

TEST(Form, ControlsLeaveWithTheirEnd)
{
    Form form(u"frmMain"_s);
    Button stays(form, u"stays"_s);
    std::optional<Button> goes(std::in_place, form, u"goes"_s);
    goes->setFocus();
    goes.reset();
    EXPECT_EQ(form.control(u"goes"), nullptr);
    EXPECT_EQ(form.focus(), nullptr);
    EXPECT_EQ(form.controls(), (QList<Control *>{&stays}));
    goes.emplace(form, u"goes"_s); // the name is free again
    EXPECT_EQ(form.control(u"goes"), &*goes);
}

TEST(Form, FocusIsLostBeforeItIsGot)
{
    Form form(u"frmMain"_s);
    TextBox a(form, u"a"_s);
    TextBox b(form, u"b"_s);
    QStringList heard;
    for (TextBox *box : {&a, &b}) {
        QObject::connect(box, &Control::gotFocus, box,
                         [&heard, box] { heard.append(u"got "_s + box->name()); });
        QObject::connect(box, &Control::lostFocus, box, [&heard, box](Control *next) {
            heard.append(u"lost "_s + box->name() + u" to "_s
                         + (next != nullptr ? next->name() : u"none"_s));
        });
    }
    a.setFocus();
    a.setFocus();
    b.setFocus();
    form.setFocus(nullptr);
    EXPECT_EQ(heard.join(u"; "_s).toStdString(), "got a; lost a to b; got b; lost b to none");
}

TEST(Form, WhoHearsALossMaySendTheFocusElsewhere)
{
    Form form(u"frmMain"_s);
    TextBox a(form, u"a"_s);
    TextBox b(form, u"b"_s);
    TextBox c(form, u"c"_s);
    int gotB = 0;
    QObject::connect(&a, &Control::lostFocus, &a, [&c] { c.setFocus(); });
    QObject::connect(&b, &Control::gotFocus, &b, [&gotB] { ++gotB; });
    a.setFocus();
    b.setFocus();
    EXPECT_EQ(form.focus(), &c);
    EXPECT_EQ(gotB, 0);
}

TEST(Form, IsBusyUntilTheLastWhoSaidSoIsDone)
{
    Form form(u"frmMain"_s);
    QStringList heard;
    QObject::connect(&form, &Form::busyChanged, &form,
                     [&heard](bool busy) { heard.append(busy ? u"busy"_s : u"free"_s); });
    {
        const Form::Busy outer(form);
        {
            const Form::Busy inner(form);
        }
        EXPECT_TRUE(form.isBusy());
    }
    EXPECT_FALSE(form.isBusy());
    EXPECT_EQ(heard.join(u' ').toStdString(), "busy free");
}

} // namespace
} // namespace kavro
