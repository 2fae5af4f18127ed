#pragma once

#include "controls/indicators.h"

#include <QString>

namespace kavro {

/// The foot of the main window.
struct StatusPanels
{
    explicit StatusPanels(Form &frmMain);

    /// 1 the document's name, 2 its format's label, 3 state and recorder, 4 findings.
    StatusBar StatusBar1;
    Label lblEncoding; ///< encoding of the document
};

enum StatusPanel { NamePanel = 1, FormatPanel = 2, StatePanel = 3, FindingsPanel = 4 };

/// Tells in the state panel what goes on; at its end the panel has its text back.
class StatusNote
{
public:
    StatusNote(StatusPanels &panels, const QString &text);
    ~StatusNote();
    Q_DISABLE_COPY_MOVE(StatusNote)

private:
    StatusPanels &m_panels;
    QString m_before;
};

} // namespace kavro
