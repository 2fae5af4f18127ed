#include "ui/splash_view.h"

#include "app/splash_window.h"
#include "ui/bind_indicators.h"
#include "ui/bind_text.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace kavro {

SplashView::SplashView(Form &frmSplash, SplashWindow &splash, QWidget *parent)
    : FormDialog(frmSplash, parent), m_splash(splash)
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    auto *frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    auto *title = new QLabel(frame);
    bind(*title, splash.lblVersion);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2.4);
    title->setFont(large);
    auto *about = new QLabel(tr("Editor for film subtitles"), frame);
    auto *build = new QLabel(frame);
    bind(*build, splash.lblBuild);
    auto *buildRow = new QHBoxLayout;
    buildRow->addWidget(new QLabel(tr("Build"), frame));
    buildRow->addWidget(build, 1);
    auto *progress = new QLabel(frame);
    bind(*progress, splash.Label1);
    for (QLabel *label : {title, about, build, progress}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    auto *inner = new QVBoxLayout(frame);
    inner->setContentsMargins(36, 30, 36, 20);
    inner->addWidget(title);
    inner->addWidget(about);
    inner->addLayout(buildRow);
    inner->addStretch();
    inner->addWidget(progress);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    setFixedSize(460, 240);
    runByTheClock(splash.Timer2, *this);
}

void SplashView::keyPressEvent(QKeyEvent *)
{
    m_splash.ExitfrmSplash();
}

void SplashView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->position().toPoint();
    m_dragged = false;
}

void SplashView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint moved = event->position().toPoint() - m_pressed;
    if (!m_dragged && moved.manhattanLength() >= QApplication::startDragDistance()) {
        m_dragged = true;
        setCursor(Qt::SizeAllCursor);
    }
    if (m_dragged) {
        move(pos() + moved);
    }
}

void SplashView::mouseReleaseEvent(QMouseEvent *)
{
    unsetCursor();
    if (!m_dragged) {
        m_splash.ExitfrmSplash();
    }
}

} // namespace kavro
