#include "ui/control_window_view.h"

#include "core/control_window.h"
#include "ui/bind_buttons.h"
#include "ui/bind_indicators.h"
#include "ui/bind_text.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

ControlWindowView::ControlWindowView(Form &frmControl, ControlWindow &control, QWidget *parent)
    : FormDialog(frmControl, parent)
{
    auto *log = new QPlainTextEdit(this);
    bindLog(*log, control.Text1[0], tr("Report"));
    auto *bar = new QProgressBar(this);
    bind(*bar, control.ProgressBar1, tr("Progress"));
    auto *end = new QLabel(this);
    bind(*end, control.lblEnd);
    auto *close = new QCheckBox(this);
    bind(*close, control.chkClose);
    auto *ok = new QPushButton(this);
    bind(*ok, control.cmdOk);
    ok->setDefault(true);
    ok->setMinimumWidth(84);

    auto *foot = new QHBoxLayout;
    foot->addWidget(close, 1);
    foot->addWidget(ok);
    QVBoxLayout *layout = makeLayout();
    layout->addWidget(log, 1);
    layout->addWidget(bar);
    layout->addWidget(end);
    layout->addLayout(foot);
    ok->setFocus();
    resize(520, 340);
}

} // namespace kavro
