#pragma once

#include <QWidget>

class QLabel;
class TouchButton;

/// Why something cannot be opened.
class MessagePage : public QWidget {
    Q_OBJECT

public:
    explicit MessagePage(QWidget *parent = nullptr);

    /// `reason` is shown as it is. `offersOther`: the file has another layer or task to choose.
    void tell(const QString &reason, bool offersOther);

Q_SIGNALS:
    void left();
    void otherWanted();

private:
    QLabel *text;
    TouchButton *other;
};
