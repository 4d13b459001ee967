#pragma once

#include <QObject>

class QWidget;

/// Tells when a control has taken a finger's hold as a long touch. On the user-interface thread.
class LongTouchWatch : public QObject {
    Q_OBJECT

public:
    /// `control` is watched from now on; not owned, may go.
    explicit LongTouchWatch(QObject *control);

    /// The control has sent its signal longTouch(int), or has opened a dialog on it and runs that.
    bool isOver() const;

private Q_SLOTS:
    void end();

private:
    QWidget *formerDialog;
    bool hasEnded = false;
};
