#pragma once

#include <QLabel>

/// A figure with its unit in the middle of its place, on as many lines as it needs and has room for; units stay whole.
class Readout : public QLabel {
    Q_OBJECT

public:
    explicit Readout(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
