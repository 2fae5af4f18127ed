#include "tools/search_replace.h"

#include "core/action_trace.h"
#include "core/document.h"
#include "core/edit_history.h"
#include "core/editor_page.h"
#include "core/language.h"
#include "core/main_menu.h"
#include "core/status_panels.h"
#include "core/text.h"

#include <QStringBuilder>

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

enum SearchCode { GoCode = 508, SearchModeCode = 509, ReplaceModeCode = 510 };

enum Mode { SearchMode, ReplaceMode };

enum SearchText { ReadyText = 39, NotFoundText = 42, MatchesText = 43 };

constexpr int countDelay = 200; ///< ms

} // namespace

SearchReplace::SearchReplace(Form &frmMain, const Parts &parts)
    : rtfSearch(frmMain, u"rtfSearch"_s),
      rtfReplace(frmMain, u"rtfReplace"_s),
      Option1(frmMain, u"Option1"_s),
      cmdSearch(frmMain, u"cmdSearch"_s),
      List4(frmMain, u"List4"_s, Control::noIndex, {.toggle = u"Label47"_s, .label = {}}),
      Command2(frmMain, u"Command2"_s),
      lblSearch(frmMain, u"lblSearch"_s),
      lblReplace(frmMain, u"lblReplace"_s),
      lblStored(frmMain, u"lblStored"_s),
      lblMatches(frmMain, u"lblMatches"_s),
      timMatches(frmMain, u"timMatches"_s, countDelay),
      m_parts(parts)
{
    Option1[SearchMode].setOn();
    connectFields();
    connectCount();
    QObject::connect(&cmdSearch, &Button::clicked, &cmdSearch, [this] { go(); });
    connectMenu();
}

void SearchReplace::connectMenu()
{
    MainMenu &menu = m_parts.menu;
    QObject::connect(&menu.mnuSearch, &Button::clicked, &cmdSearch,
                     [this] { openPage(SearchMode); });
    QObject::connect(&menu.mnuReplace, &Button::clicked, &cmdSearch,
                     [this] { openPage(ReplaceMode); });
    QObject::connect(&menu.mnuSearchAgain, &Button::clicked, &cmdSearch, [this] { searchAgain(); });
}

void SearchReplace::connectFields()
{
    QObject::connect(&rtfReplace, &TextBox::textChanged, &cmdSearch, [this](const QString &text) {
        Option1[text.isEmpty() ? SearchMode : ReplaceMode].setOn();
    });
    for (OptionButton &mode : Option1) {
        QObject::connect(&mode, &OptionButton::clicked, &cmdSearch, [this, &mode] {
            m_parts.trace.RecordAction({}, SearchModeCode + mode.index());
        });
    }
    QObject::connect(&List4, &ListBox::picked, &cmdSearch,
                     [this](int index) { takeStored(List4.item(index)); });
    QObject::connect(&Command2, &Button::clicked, &cmdSearch,
                     [this] { List4.removeItem(List4.selected()); });
}

// A count looks at every cell: it waits until the typing or the edit that changes it is over.
void SearchReplace::connectCount()
{
    const auto recount = [this] {
        timMatches.setOn(!rtfSearch.text().isEmpty());
        if (rtfSearch.text().isEmpty()) {
            lblMatches.setCaption({});
        }
    };
    const Grid &grid = m_parts.document.editor.grdSubEdit;
    QObject::connect(&grid, &Grid::cellChanged, &cmdSearch, recount);
    QObject::connect(&grid, &Grid::rowsInserted, &cmdSearch, recount);
    QObject::connect(&grid, &Grid::rowsRemoved, &cmdSearch, recount);
    QObject::connect(&grid, &Grid::reset, &cmdSearch, recount);
    QObject::connect(&rtfSearch, &TextBox::textChanged, &cmdSearch, [this, recount] {
        clearResult();
        recount();
    });
    QObject::connect(&m_parts.document, &SubtitleDocument::replaced, &cmdSearch,
                     [this] { clearResult(); });
    QObject::connect(&timMatches, &Timer::fired, &cmdSearch, [this] {
        timMatches.setOn(false);
        countMatches();
    });
}

void SearchReplace::go()
{
    m_parts.trace.RecordAction({}, GoCode);
    if (Option1[ReplaceMode].isOn()) {
        replaceAll();
    } else {
        search();
    }
}

/// Brings the fields to the front, the one to go on with in the focus.
void SearchReplace::openPage(int mode)
{
    if (showPage) {
        showPage();
    }
    if (!Option1[mode].isOn()) {
        Option1[mode].click();
    }
    TextBox &field = mode == ReplaceMode && !rtfSearch.text().isEmpty() ? rtfReplace : rtfSearch;
    field.setFocus();
    field.selectAll();
}

void SearchReplace::searchAgain()
{
    if (rtfSearch.text().isEmpty()) {
        openPage(SearchMode);
    } else if (Option1[SearchMode].isOn()) {
        cmdSearch.click();
    } else {
        search(); // records nothing: the button's code would replace when a macro presses it
    }
}

int SearchReplace::firstRow() const
{
    // Before the first click it stands on the header, which is no line of the document.
    return std::max(m_parts.document.searchIndex, 1);
}

void SearchReplace::search()
{
    SubtitleDocument &document = m_parts.document;
    Grid &grid = document.editor.grdSubEdit;
    const QString what = lowerCase(rtfSearch.text());
    for (int row = firstRow(); row <= document.subtitleCount(); ++row) {
        for (int col = StartColumn; col <= LastTextColumn; ++col) {
            if (InStr(lowerCase(grid.text(row, col)), what) > 0) {
                grid.setCurrent(row, col);
                grid.setTopRow(row);
                document.searchIndex = row + 1;
                clearResult();
                return;
            }
        }
    }
    reachEnd(false);
}

void SearchReplace::replaceAll()
{
    SubtitleDocument &document = m_parts.document;
    Grid &grid = document.editor.grdSubEdit;
    const SubtitleDocument::Act act(document);
    m_parts.history.LogHistory(m_parts.language.ownText(u"Replace"_s),
                               m_parts.language.ownText(u"[Original: %1] [To: %2]"_s)
                                   .arg(rtfSearch.text(), rtfReplace.text()));
    const QString what = lowerCase(rtfSearch.text());
    bool found = false;
    {
        const Grid::Batch batch(grid);
        for (int row = firstRow(); row <= document.subtitleCount(); ++row) {
            for (int col = StartColumn; col <= LastTextColumn; ++col) {
                // The first place in a cell alone: what was put in is not looked through again.
                const QString &text = grid.text(row, col);
                const qsizetype at = InStr(lowerCase(text), what);
                if (at > 0) {
                    grid.setText(row, col,
                                 Left(text, at - 1) % rtfReplace.text()
                                     % Mid(text, at + what.size()));
                    found = true;
                }
            }
        }
    }
    if (found) {
        document.markEdited();
    }
    reachEnd(found);
}

// A search is stored when it has come to the end of the document, not when it found something.
void SearchReplace::reachEnd(bool found)
{
    QString item = trimmed(rtfSearch.text()).toString();
    if (!item.isEmpty()) {
        if (!rtfReplace.text().isEmpty()) {
            item += u'>' + rtfReplace.text();
        }
        if (!List4.items().contains(item)) {
            List4.addItem(item);
        }
    }
    m_parts.document.RefreshCurrentRow();
    if (found) {
        clearResult();
    } else {
        m_notFound =
            m_parts.language.text(LangGroup::Common, NotFoundText) % u' ' % rtfSearch.text();
        m_parts.status.StatusBar1.setPanel(StatePanel, m_notFound);
    }
}

void SearchReplace::clearResult()
{
    // Others write into the panel too: what they wrote since stays.
    StatusBar &bar = m_parts.status.StatusBar1;
    if (!m_notFound.isEmpty() && bar.panel(StatePanel) == m_notFound) {
        bar.setPanel(StatePanel, m_parts.language.text(LangGroup::Common, ReadyText));
    }
    m_notFound.clear();
}

void SearchReplace::takeStored(const QString &item)
{
    const qsizetype mark = item.indexOf(u'>');
    rtfSearch.setText(mark < 0 ? item : item.first(mark));
    rtfReplace.setText(mark < 0 ? QString() : item.sliced(mark + 1));
    Option1[mark < 0 ? SearchMode : ReplaceMode].setOn();
}

void SearchReplace::countMatches()
{
    const SubtitleDocument &document = m_parts.document;
    const Grid &grid = document.editor.grdSubEdit;
    const QString what = lowerCase(rtfSearch.text());
    int count = 0;
    for (int row = 1; row <= document.subtitleCount(); ++row) {
        for (int col = StartColumn; col <= LastTextColumn; ++col) {
            count += InStr(lowerCase(grid.text(row, col)), what) > 0 ? 1 : 0;
        }
    }
    lblMatches.setCaption(m_parts.language.text(LangGroup::Common, MatchesText)
                          % blankNumberText(count));
}

} // namespace kavro
