#pragma once

#include <QPointF>
#include <QRegion>
#include <QWidget>

class InputPassage;
class TerminalWindow;
class UnseenWindows;

/// The program's window. It shows the terminal's display with all dialogs and popups over it, as large as fits in
/// proportion, on the ground's colour. F11 and the display's button fill the screen with it and end that again; Escape
/// ends it, too.
class ScreenWindow : public QWidget {
    Q_OBJECT

public:
    /// `display` is not owned and outlives this object. It and all windows that are shown from now on are seen in this
    /// window only.
    explicit ScreenWindow(TerminalWindow *display);
    ~ScreenWindow() override;

    /// The window that shows the terminal's windows; null when none does.
    static ScreenWindow *find();
    /// Where this window shows a pixel of the terminal.
    QPointF placeOf(const QPointF &pixel) const;

    /// Moves and shrinks the window so that all of it is seen with its frame, once the desktop has framed it.
    void keepOnScreen();
    /// The window's size when it fills neither the screen nor what the desktop leaves of it.
    QSize plainSize() const;

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;

private:
    void showPart(const QRegion &part);
    void activateForemost();
    void fitFrame();
    void switchFullScreen() { setWindowState(windowState() ^ Qt::WindowFullScreen); }

    TerminalWindow *display;
    UnseenWindows *windows;
    InputPassage *passage = nullptr;
    bool isToBeFitted = false;
    QSize sizeBefore; ///< The size before it filled the screen.
};
