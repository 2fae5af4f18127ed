#pragma once

#include <QDialog>

class QVBoxLayout;

namespace kavro {

class Form;

/// A window that shows a form. Its close button is the form's affair; Escape closes nothing.
class FormDialog : public QDialog
{
    Q_OBJECT

public:
    FormDialog(Form &form, QWidget *parent);

    [[nodiscard]] Form &form() { return m_form; }
    /// Escape.
    void reject() override {}

protected:
    /// The window's layout, with the margins that all windows have.
    QVBoxLayout *makeLayout();
    /// Gives labels, boxes and buttons their letters.
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    Form &m_form;
};

} // namespace kavro
