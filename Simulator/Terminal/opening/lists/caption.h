#pragma once

#include <QLabel>

/// A line of text that is shortened in its middle where it is too long.
class Caption : public QLabel {
    Q_OBJECT

public:
    Caption(int pixels, bool isBold, QWidget *parent = nullptr);

    /// Takes it as VisibleText.
    void setText(const QString &text);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
