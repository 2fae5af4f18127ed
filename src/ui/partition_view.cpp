#include "ui/partition_view.h"

#include "app/program.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"
#include "ui/cell_editor.h"
#include "ui/grid_view.h"
#include "ui/mnemonics.h"
#include "ui/script_font.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace kavro {

using namespace Qt::StringLiterals;

PartitionView::PartitionView(Program &program, QWidget *parent) : ToolPage(parent)
{
    auto *heading = new QLabel(this);
    bind(*heading, program.splitOutput.Label6);
    addRow()->addWidget(heading);
    QHBoxLayout *row = addRow(1);
    row->addWidget(makeGrid(program), 2);
    row->addLayout(makePreview(program), 3);
    addCommands(program);
    connect(this, &ToolPage::aboutToAct, this, &PartitionView::finishEdit);
}

void PartitionView::finishEdit()
{
    m_editor->finish();
}

QWidget *PartitionView::makeGrid(Program &program)
{
    TextBox &box = program.partitionList.rtfSplitEdit;
    m_grid = new GridView(program.partition.grid, tr("Parts"), {}, this);
    const QFontMetrics metrics = m_grid->fontMetrics();
    m_grid->setColumnWidths({metrics.horizontalAdvance(u"9999"_s) + 12, 260,
                             metrics.horizontalAdvance(u"-00:00:00,000"_s) + 24},
                            PartNameColumn, PartNameColumn);
    m_grid->setHint(tr("Type the name of a part's file, and then its length."));
    m_editor = new CellEditor(*m_grid, box, tr("Current cell"));
    connect(m_grid, &GridView::editAsked, this, [this, &box] {
        if (box.acceptsActs()) {
            m_editor->begin();
        }
    });
    connect(m_grid, &GridView::typedOver, this, [this, &box](QEvent *event) {
        if (box.acceptsActs()) {
            m_editor->beginWith(event);
        }
    });
    return m_grid;
}

QLayout *PartitionView::makePreview(Program &program)
{
    auto *title = new QLabel(this);
    bind(*title, program.splitOutput.Label7);
    auto *text = new QPlainTextEdit(this);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    bind(*text, program.splitOutput.txtPreview, tr("File of the part"));
    followScript(*text, program.settings);

    auto *steps = new QHBoxLayout;
    steps->addWidget(title, 1);
    for (Button &button : program.splitOutput.command29) {
        steps->addWidget(makeButton(button));
    }
    auto *layout = new QVBoxLayout;
    layout->addLayout(steps);
    layout->addWidget(text, 1);
    return layout;
}

void PartitionView::addCommands(Program &program)
{
    auto *format = new QComboBox(this);
    bind(*format, program.formats.combo3, tr("Format of the files"));
    QHBoxLayout *row = addRow();
    addField(row, program.partitionList.Label8, format);
    row->addStretch(1);
    row->addWidget(makeButton(program.partitionList.command6));
    row->addWidget(makeButton(program.splitOutput.command28));
    row->addWidget(makeDefault(program.splitOutput.command5));
    // The preview comes and goes with buttons of its own.
    connect(&program.splitOutput.command28, &Button::captionChanged, this,
            [this] { assignMnemonicsLater(*this); });
}

} // namespace kavro
