#include "ui/preview_view.h"

#include "controls/form.h"
#include "partition/script_preview.h"
#include "ui/bind_buttons.h"
#include "ui/bind_lists.h"
#include "ui/bind_text.h"
#include "ui/elided_label.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavro {

namespace {

/// The lines in a font of one width, as text editors show files.
QListView *makeLines(ListBox &list, QWidget *parent)
{
    auto *view = new QListView(parent);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    bind(*view, list, PreviewView::tr("Lines of the file"));
    return view;
}

} // namespace

PreviewView::PreviewView(Form &frmPreview, ScriptPreview &preview, QWidget *parent)
    : FormDialog(frmPreview, parent)
{
    auto *name = new ElidedLabel(Qt::ElideMiddle, this);
    bind(*name, preview.lblData[0]);
    auto *format = new QLabel(this);
    bind(*format, preview.lblData[1]);
    auto *count = new QLabel(this);
    bind(*count, preview.lblData[2]);
    auto *close = new QPushButton(this);
    bind(*close, preview.Command1);
    close->setDefault(true);

    auto *foot = new QHBoxLayout;
    foot->addWidget(format);
    foot->addSpacing(12);
    foot->addWidget(count, 1);
    foot->addWidget(close);
    QVBoxLayout *layout = makeLayout();
    layout->addWidget(name);
    layout->addWidget(makeLines(preview.List1, this), 1);
    layout->addLayout(foot);
    close->setFocus();
    resize(640, 480);
}

void PreviewView::reject()
{
    form().requestClose();
}

} // namespace kavro
