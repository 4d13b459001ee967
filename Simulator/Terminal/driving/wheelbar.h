#pragma once

#include <QWidget>

/// The steering wheel as a bar: a finger that slides along it turns the wheel; lifting the finger lets the wheel go
/// back to the middle.
class WheelBar : public QWidget {
    Q_OBJECT

public:
    explicit WheelBar(QWidget *parent = nullptr);

    /// -1 (left) to 1 (right).
    double turn() const { return turned; }
    /// Turns the wheel and reports it.
    void setTurn(double turn);

Q_SIGNALS:
    void turnedTo(double turn);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    double reach() const;

    double turned = 0.0;
};
