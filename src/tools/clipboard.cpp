#include "tools/clipboard.h"

#include "controls/tab_strip.h"
#include "core/action_trace.h"
#include "core/clipboard_panel.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/main_tabs.h"
#include "core/messages.h"
#include "core/partition_page.h"
#include "core/text.h"
#include "core/time_page.h"
#include "tools/clip_item.h"

#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum ActionCode { NoCode = 0, ClipCode = 503, DeleteCode = 1009, ClearCode = 1010 };

enum PanelButton { ChangeButton = 2, DeleteButton = 3, ClearButton = 4 };

} // namespace

struct Clipboard::Target
{
    int page;
    int innerPage;
    void (Clipboard::*take)(const ClipItem &, int);
    int codes[2]; ///< by button
};

std::span<const Clipboard::Target> Clipboard::targets()
{
    // clang-format off
    static constexpr Target rows[] = {
        {CalculatorTab, 0, &Clipboard::toSpreadsheet, {NoCode, NoCode}},
        {CalculatorTab, 1, &Clipboard::toClassic, {1001, 1002}},
        {PartitionTab, 0, &Clipboard::toPartition, {1003, 1003}},
        {EditorTab, 0, &Clipboard::toShift, {1004, 1004}},
        {EditorTab, 1, &Clipboard::toStretch, {1005, 1006}},
        {EditorTab, 2, &Clipboard::toTime, {1007, 1008}},
    };
    // clang-format on
    return rows;
}

Clipboard::Clipboard(Form &frmMain, const Parts &parts)
    : rtfClipBoard(frmMain, u"rtfClipBoard"_s), m_parts(parts)
{
    connectPanel();
    QObject::connect(&m_parts.editor.Command47, &Button::clicked, &rtfClipBoard,
                     [this] { clipEditBox(); });
    QObject::connect(&rtfClipBoard, &Control::gotFocus, &rtfClipBoard,
                     [this] { rtfClipBoard.selectAll(); });
}

void Clipboard::connectPanel()
{
    for (Button &button : m_parts.panel.command4) {
        QObject::connect(&button, &Button::clicked, &rtfClipBoard,
                         [this, &button] { press(button.index()); });
    }
    const ListBox &list = m_parts.panel.List1;
    const auto showItem = [this, &list](int index) {
        if (index >= 0) {
            rtfClipBoard.setText(list.item(index));
        }
    };
    QObject::connect(&list, &ListBox::selectedChanged, &rtfClipBoard, showItem);
    QObject::connect(&list, &ListBox::picked, &rtfClipBoard, showItem);
}

void Clipboard::press(int button)
{
    switch (button) {
    case ChangeButton: changeItem(); break;
    case DeleteButton: deleteItem(); break;
    case ClearButton: clearItems(); break;
    default: copyItem(button); break;
    }
    if (m_parts.panel.List1.count() == 0) {
        for (Button &each : m_parts.panel.command4) {
            each.setEnabled(false);
        }
    }
}

void Clipboard::copyItem(int button)
{
    // The player shows the timing page beside its picture.
    const int page = m_parts.tabMain.tab() == PlayerTab ? EditorTab : m_parts.tabMain.tab();
    const int innerPage = page == CalculatorTab ? m_parts.tabCalculator.tab()
                          : page == EditorTab   ? m_parts.editor.SSTab3.tab()
                                                : 0;
    const auto target = std::ranges::find_if(targets(), [&](const Target &row) {
        return row.page == page && row.innerPage == innerPage;
    });
    if (target == targets().end()) {
        return;
    }
    const int code = target->codes[button];
    if (code != NoCode) {
        m_parts.trace.RecordAction({}, code);
    }
    (this->*target->take)(ClipItem(m_parts.panel.List1.selectedText()), button);
}

void Clipboard::toSpreadsheet(const ClipItem &item, int /*button*/)
{
    if (copyToCel) {
        copyToCel(item);
    }
}

void Clipboard::toClassic(const ClipItem &item, int button)
{
    if (copyToClassic) {
        copyToClassic(item, button);
    }
}

void Clipboard::toPartition(const ClipItem &item, int /*button*/)
{
    m_parts.partition.append(item.name, item.time(u'.'));
}

void Clipboard::toShift(const ClipItem &item, int /*button*/)
{
    m_parts.rtfShiftDuration.setText(item.time(u','));
}

void Clipboard::toStretch(const ClipItem &item, int button)
{
    TextBox &field = button == 0 ? m_parts.times.rtfStretchFirst : m_parts.times.rtfStretchLast;
    field.setText(item.time(u','));
}

void Clipboard::toTime(const ClipItem &item, int button)
{
    TextBox &field = button == 0 ? m_parts.times.rtfTimeStart : m_parts.times.rtfTimeEnd;
    field.setText(item.time(u','));
}

bool Clipboard::requireItem()
{
    const bool has = m_parts.panel.List1.selected() >= 0;
    if (!has) {
        m_parts.messages.ShowMessage(u"Please select an item from the Clipboard 1st."_s, Answer::Ok,
                                     u"ok"_s, m_parts.language.text(LangGroup::Report, 13));
    }
    return has;
}

void Clipboard::changeItem()
{
    if (requireItem()) {
        m_parts.panel.List1.setItem(m_parts.panel.List1.selected(), rtfClipBoard.text());
    }
}

void Clipboard::deleteItem()
{
    m_parts.trace.RecordAction({}, DeleteCode);
    if (requireItem()) {
        m_parts.panel.List1.removeItem(m_parts.panel.List1.selected());
        rtfClipBoard.setText({});
    }
}

void Clipboard::clearItems()
{
    m_parts.trace.RecordAction({}, ClearCode);
    m_parts.panel.List1.clear();
}

void Clipboard::clipEditBox()
{
    const QString number = blankNumberText(m_parts.panel.List1.count() + 1);
    m_parts.panel.add(u"Editor.Text:" % number % u'>' % m_parts.editor.rtfSubEditBasic.text());
    m_parts.trace.RecordAction({}, ClipCode);
}

} // namespace kavro
