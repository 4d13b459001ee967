#pragma once

#include <QWidget>

class Caption;

/// How far a file is read, and a button to leave it.
class ProgressPage : public QWidget {
    Q_OBJECT

public:
    explicit ProgressPage(QWidget *parent = nullptr);

    void begin(const QString &text);
    /// 0 to 1.
    void setFraction(double fraction);

Q_SIGNALS:
    void cancelled();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Caption *title;
    double done = 0.0;
};
