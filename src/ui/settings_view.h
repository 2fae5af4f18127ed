#pragma once

#include "ui/form_dialog.h"

#include <QString>

class QBoxLayout;
class QStackedWidget;

namespace kavro {

class CheckBox;
class ComboBox;
class Frame;
class SettingsWindow;
struct SettingsPage;

/// The window of the options: the tree at the left, one page at the right.
class SettingsView : public FormDialog
{
    Q_OBJECT

public:
    SettingsView(Form &frmSettings, SettingsWindow &window, SettingsPage &settings,
                 QWidget *parent);

    /// Escape is Cancel.
    void reject() override;

private:
    void makePages(SettingsPage &settings);
    /// A page with its caption, which stands in front while `frame` is visible.
    QBoxLayout *addPage(Frame &frame);
    void addBox(QBoxLayout &page, CheckBox &box);
    /// A list, set in below the box that switches it.
    void addList(QBoxLayout &page, ComboBox &list, const CheckBox &box, bool typed);
    void addNote(QBoxLayout &page, const QString &text);

    SettingsWindow &m_window;
    QStackedWidget *m_pages;
};

} // namespace kavro
