#include "screenwindow.h"

#include "fieldscene.h"
#include "inputpassage.h"
#include "screenfit.h"
#include "terminalwindow.h"
#include "unseenwindows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace {

constexpr QSize leastSize{640, 400};

}

ScreenWindow::ScreenWindow(TerminalWindow *terminal)
    : display(terminal)
    , windows(new UnseenWindows(terminal, this))
{
    setObjectName(QStringLiteral("screenWindow"));
    setWindowTitle(display->windowTitle());
    setMinimumSize(leastSize);
    resize(TerminalWindow::displaySize);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setMouseTracking(true);
    setAcceptDrops(true);
    connect(windows, &UnseenWindows::changed, this, &ScreenWindow::showPart);
    connect(windows, &UnseenWindows::foremostChanged, this, &ScreenWindow::activateForemost, Qt::QueuedConnection);
    connect(display, &TerminalWindow::closed, this, &QWidget::close);
    connect(display, &TerminalWindow::fullScreenSwitched, this, &ScreenWindow::switchFullScreen);
    // The ground around the display, too.
    connect(display, &TerminalWindow::themeChanged, this, QOverload<>::of(&QWidget::update));
}

ScreenWindow::~ScreenWindow() = default;

ScreenWindow *ScreenWindow::find()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (auto *screen = qobject_cast<ScreenWindow *>(window))
            return screen;
    }
    return nullptr;
}

QPointF ScreenWindow::placeOf(const QPointF &pixel) const
{
    return ScreenFit(QSizeF(size())).toWindow().map(pixel);
}

void ScreenWindow::keepOnScreen()
{
    isToBeFitted = true;
    if (windowHandle()->isActive())
        fitFrame();
}

void ScreenWindow::fitFrame()
{
    if (!std::exchange(isToBeFitted, false) || isFullScreen() || isMaximized())
        return;
    setGeometry(
        ScreenFit::onScreen(geometry(), windowHandle()->frameMargins(), windowHandle()->screen()->availableGeometry()));
}

QSize ScreenWindow::plainSize() const
{
    return isFullScreen() || isMaximized() ? sizeBefore : size();
}

void ScreenWindow::showEvent(QShowEvent *)
{
    if (passage == nullptr)
        passage = new InputPassage(windows, this);
    display->show();
    activateForemost();
}

void ScreenWindow::resizeEvent(QResizeEvent *)
{
    if (!isFullScreen() && !isMaximized())
        sizeBefore = size();
    update();
}

void ScreenWindow::showPart(const QRegion &part)
{
    const ScreenFit fit{QSizeF(size())};
    for (const QRect &rectangle : part)
        update(fit.shownIn(rectangle));
}

void ScreenWindow::paintEvent(QPaintEvent *event)
{
    const ScreenFit fit{QSizeF(size())};
    QPainter painter(this);
    painter.fillRect(event->rect(), FieldScene::groundColor());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect part = fit.toWindow().inverted().mapRect(QRectF(event->rect())).toAlignedRect();
    const QWidgetList shown = windows->stacked();
    for (QWidget *window : shown) {
        const QRect seenPart = part & window->geometry() & QRect(QPoint(), TerminalWindow::displaySize);
        if (seenPart.isEmpty())
            continue;
        painter.setTransform(fit.toWindow());
        painter.translate(seenPart.topLeft());
        window->render(&painter, QPoint(), seenPart.translated(-window->pos()),
                       QWidget::DrawWindowBackground | QWidget::DrawChildren);
    }
}

void ScreenWindow::activateForemost()
{
    // The desktop knows only this window, which tells the others which of them has the keyboard.
    if (isVisible())
        QApplication::setActiveWindow(windows->foremost());
}

bool ScreenWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate) {
        QMetaObject::invokeMethod(this, &ScreenWindow::activateForemost, Qt::QueuedConnection);
        // A desktop frames a window before it gives it the keyboard.
        QMetaObject::invokeMethod(this, &ScreenWindow::fitFrame, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::WindowStateChange)
        display->showFullScreen(isFullScreen());
    return QWidget::event(event);
}

void ScreenWindow::closeEvent(QCloseEvent *event)
{
    // A dialog of a plug-in keeps the terminal as it is.
    event->setAccepted(QApplication::activeModalWidget() == nullptr);
    if (event->isAccepted() && display->isVisible())
        display->close();
}

void ScreenWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isAsked = event->key() == Qt::Key_F11 || (event->key() == Qt::Key_Escape && isFullScreen());
    event->setAccepted(isAsked);
    if (isAsked)
        switchFullScreen();
}

void ScreenWindow::dragEnterEvent(QDragEnterEvent *event)
{
    QCoreApplication::sendEvent(display, event);
}

void ScreenWindow::dropEvent(QDropEvent *event)
{
    QCoreApplication::sendEvent(display, event);
}
