#pragma once

#include <QAbstractButton>

/// A big flat button of the terminal's own panels. A checked one carries the accent colour.
class TouchButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit TouchButton(const QString &text, QWidget *parent = nullptr);

    /// A second, smaller line under the text.
    void setNote(const QString &note);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString note;
};
