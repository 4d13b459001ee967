#pragma once

#include "screenfit.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMouseEvent;
class QTouchEvent;
class QWheelEvent;
class UnseenWindows;

/// Passes on what the operator does in the window on the screen to the widgets of the terminal's windows that it shows,
/// as Qt does with what the desktop sends: Qt itself gives nothing to windows that the desktop does not show.
class InputPassage : public QObject {
public:
    InputPassage(UnseenWindows *windows, QWidget *seen);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void passMouse(const QMouseEvent &event);
    void passWheel(const QWheelEvent &event);
    /// Whether somebody took it; Qt makes a mouse's of it where nobody did.
    bool passTouch(const QTouchEvent &event);
    void passKey(QKeyEvent *event);
    QWidget *widgetAt(const QPointF &pixel) const;
    ScreenFit fit() const { return ScreenFit(seen->size()); }

    UnseenWindows *windows;
    QWidget *seen;
    QPointer<QWidget> pressed; ///< Has the button that is held; all that the pointer does is its until then.
    QPointer<QWidget> touched; ///< The same of fingers.
};
