#pragma once

#include "ui/page_tabs.h"

#include <QMainWindow>

#include <optional>

namespace kavro {

class EditorPageView;
class HelpPages;
class PanelSplitter;
class Program;

/// The main window, `frmMain`: menus, the left panel, the pages, the foot. It opens and closes with
/// its form.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive the window.
    MainWindow(Program &program, HelpPages &help);

    /// Shows the window where the program's stored place has it.
    void open();
    /// Takes what was typed in a cell as if Enter had been pressed.
    void finishEdit();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makePages();
    /// A page of `tabMain`, reached by Ctrl and its number from 1.
    void addPage(int number, PageTabs::MakePage make);
    void connectProgram();
    void showTitle();
    void showPageHelp();
    [[nodiscard]] std::optional<int> helpOfFocus() const;
    void showCurrentLine();
    void storePlace();
    void end();
    [[nodiscard]] EditorPageView *editorPage() const;

    Program &m_program;
    HelpPages &m_help;
    PanelSplitter *m_splitter = nullptr;
    PageTabs *m_tabs = nullptr;
};

} // namespace kavro
