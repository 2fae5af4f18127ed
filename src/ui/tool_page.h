#pragma once

#include <QPushButton>
#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QHBoxLayout;
class QVBoxLayout;

namespace kavro {

class Button;
class Label;
class TextBox;

/// A small page of fields: rows of labelled fields in reading order, and one button that Enter
/// presses wherever in the page the focus is. On another button Enter presses that one.
class ToolPage : public QWidget
{
    Q_OBJECT

public:
    explicit ToolPage(QWidget *parent);

    /// Room for `rows` rows of fields, whatever stands in them.
    static int heightOf(int rows);

signals:
    /// A button of the page is pressed, and hasn't acted yet.
    void aboutToAct();

protected:
    /// The next row. One with a stretch takes the room that is left.
    QHBoxLayout *addRow(int stretch = 0);
    /// Several rows whose labels and fields stand in columns, 0 and 1.
    QGridLayout *addGrid();
    /// A label ahead of `field`, whose letter leads to it.
    void addField(QBoxLayout *row, Label &label, QWidget *field);
    void addField(QGridLayout *grid, int row, Label &label, QWidget *field);

    QLineEdit *makeNumberField(TextBox &box, const QString &label);
    /// A click on it leaves the focus where it is.
    QPushButton *makeButton(Button &button);
    /// Lets a button be as narrow as its caption where the page has little room.
    static void letShrink(QPushButton &button);
    /// The button that Enter presses.
    QPushButton *makeDefault(Button &button);

    /// The first and the last row of a range, and the label that steps it through the nodes.
    void addRange(QBoxLayout *row, TextBox &first, TextBox &last, Label &step, Label &node);

    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *makeLabel(Label &label, QWidget *field);

    QVBoxLayout *m_rows;
    QPushButton *m_default = nullptr;
};

} // namespace kavro
