#pragma once

#include <QWidget>

namespace kavro {

struct EditorPage;

/// The page of the Basic tool: the edit box of the current cell, and what is done with it.
class BasicEditView : public QWidget
{
    Q_OBJECT

public:
    BasicEditView(EditorPage &editor, QWidget *parent);
};

} // namespace kavro
