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

/// Passes what the operator does in the window on the screen on to the widgets of the terminal's windows that it shows.
/// Qt does that for windows that the desktop shows, and gives nothing to others.
class InputPassage : public QObject {
public:
    InputPassage(UnseenWindows *windows, QWidget *seen);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void passMouse(const QMouseEvent &event);
    void passWheel(const QWheelEvent &event);
    /// Whether a widget took it; if none did, Qt turns it into a mouse event.
    bool passTouch(const QTouchEvent &event);
    void passKey(QKeyEvent *event);
    QWidget *widgetAt(const QPointF &pixel) const;
    ScreenFit fit() const { return ScreenFit(seen->size()); }

    UnseenWindows *windows;
    QWidget *seen;
    QPointer<QWidget> pressed; ///< The widget on which a button is held; the pointer's events all go to it.
    QPointer<QWidget> touched; ///< The same for fingers.
};
