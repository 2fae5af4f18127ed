#include "ui/diagnose_view.h"

#include "diagnose/diagnose.h"
#include "ui/bind_buttons.h"
#include "ui/bind_look.h"
#include "ui/navigation_tree.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

#include <utility>

namespace kavro {

DiagnoseView::DiagnoseView(Diagnose &diagnose, QWidget *parent) : ToolPage(parent)
{
    auto *boxes = new QVBoxLayout;
    static constexpr std::pair<DiagnoseSwitch, DiagnoseSwitch> groups[] = {
        {DiagnoseSwitch::CheckEmpty, DiagnoseSwitch::CheckNegative},
        {DiagnoseSwitch::CountWords, DiagnoseSwitch::CountTime},
        {DiagnoseSwitch::RepairOverlapping, DiagnoseSwitch::RepairEmpty}};
    for (Frame &frame : diagnose.fraCheck) {
        const auto [first, last] = groups[frame.index()];
        boxes->addWidget(makeGroup(diagnose, frame, first, last));
    }
    boxes->addWidget(makeDefault(diagnose.Command27));
    boxes->addStretch(1);

    auto *tree = new NavigationTree(diagnose.tvDiag, {}, tr("What was found"), this);
    tree->setFrameShape(QFrame::StyledPanel);
    tree->setExpandsOnDoubleClick(false);
    connect(tree, &NavigationTree::chosen, this, [this, &diagnose](int node) {
        if (diagnose.lineOf(node).value_or(0) > 0) {
            emit lineAsked();
        }
    });

    QHBoxLayout *page = addRow(1);
    page->addLayout(boxes);
    page->addWidget(tree, 1);
}

QWidget *DiagnoseView::makeGroup(Diagnose &diagnose, Frame &frame, DiagnoseSwitch first,
                                 DiagnoseSwitch last)
{
    auto *group = new QGroupBox(this);
    bindLook(*group, frame);
    const auto show = [group, &frame] { group->setTitle(withoutMnemonic(frame.caption())); };
    connect(&frame, &Frame::captionChanged, group, show);
    show();
    auto *layout = new QVBoxLayout(group);
    for (int i = static_cast<int>(first); i <= static_cast<int>(last); ++i) {
        auto *box = new QCheckBox(group);
        bind(*box, diagnose.Check3[i]);
        layout->addWidget(box);
    }
    return group;
}

} // namespace kavro
