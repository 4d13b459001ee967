#pragma once

#include <QObject>

class QWidget;

/// Knows when a control has taken a held finger as a long touch. On the user-interface thread.
class LongTouchWatch : public QObject {
    Q_OBJECT

public:
    /// `control` is watched from now on; it is not owned and may be deleted.
    explicit LongTouchWatch(QObject *control);

    /// The control has sent its signal longTouch(int), or has opened a dialog on it and runs that.
    bool isOver() const;

private Q_SLOTS:
    void end();

private:
    QWidget *formerDialog;
    bool hasEnded = false;
};
