#pragma once

#include "ui/form_dialog.h"

namespace kavro {

class SplashWindow;

/// The window of the start. A click or a key ends it; dragging moves it.
class SplashView : public FormDialog
{
    Q_OBJECT

public:
    SplashView(Form &frmSplash, SplashWindow &splash, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    SplashWindow &m_splash;
    QPoint m_pressed;       ///< where the button went down, in the window
    bool m_dragged = false; ///< a press that moved the window is no click
};

} // namespace kavro
