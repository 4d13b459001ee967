#pragma once

#include <QObject>
#include <QRegion>
#include <QWidget>

/// The terminal's windows: its display and the dialogs and popups over it. The desktop shows none of them; they lie in
/// the terminal's own pixels, its display at (0, 0), and are painted where they are to be seen. To all others, plug-ins
/// included, they are ordinary windows.
class UnseenWindows : public QObject {
    Q_OBJECT

public:
    /// Takes `display` and every window that is first shown from now on; `seen` is the window that shows them.
    UnseenWindows(QWidget *display, QWidget *seen);

    /// The open windows, from the lowest up.
    QWidgetList stacked() const;
    /// The window that has the keyboard.
    QWidget *foremost() const;
    /// Where a finger on the terminal's pixel (x, y) lands; null where a modal dialog is in the way.
    QWidget *windowAt(const QPointF &pixel) const;
    /// Whether a dialog keeps what the operator does away from `window`.
    static bool isBlocked(const QWidget *window);

Q_SIGNALS:
    /// This part of the terminal looks different now, in its pixels.
    void changed(const QRegion &part);
    /// Another window is foremost.
    void foremostChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOwn(const QWidget *window) const { return window->isWindow() && window != seen; }
    void prepare(QWidget *window);
    bool isForScreen(QWidget *widget) const;

    QWidget *display;
    QWidget *seen;
};
