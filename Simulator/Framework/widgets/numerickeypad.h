#pragma once

#include "numerickey.h"

#include <QDir>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

class OrvikButton;

/// The on-screen keypad of a numeric field: a popup that a modal dialog does not block. It reports keys, touched or
/// typed on a hardware keyboard, and shows the text that it is given; a touch outside closes it and does nothing else.
/// Its keys are named "keypad0" to "keypad9", "keypadPoint", "keypadMinus", "keypadBackspace" and "keypadEnter".
class NumericKeypad : public QWidget {
    Q_OBJECT

public:
    /// Owned by `field`, beside which it opens, and deleted when it is closed. Uses the field's font family.
    NumericKeypad(const QDir &imageDir, QWidget *field);

    /// `limits` is shown as it stands; keys that the field never takes are dimmed.
    void setLimits(const QString &limits, bool takesPoint, bool takesMinus);
    /// `startsOver`: the next key replaces the text.
    void showText(const QString &text, bool startsOver);
    /// Says why the last key was not taken, in place of the limits; empty when it was taken.
    void showRefusal(const QString &reason);
    /// Shows the keypad beside its field, within the display.
    void open();

    /// Where the keypad goes so that it leaves the field free, if the display has room for that: to the right of the
    /// field, to its left, below or above it.
    static QPoint placeBeside(const QRect &field, const QSize &keypad, const QRect &display);

Q_SIGNALS:
    /// A key other than None.
    void keyed(NumericKey key);
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The display that has `place`, in pixels of the screen.
    QRect displayAround(const QPoint &place) const;
    int paintRemark(QPainter &painter, const QRect &room) const;
    OrvikButton *addKey(const QDir &imageDir, const QString &image, const QString &name, const QString &spoken,
                        const NumericKey &key, const QRect &place);

    QString shownText;
    QString limitsText;
    QString refusal;
    bool textStartsOver = false;
    OrvikButton *pointKey = nullptr;
    OrvikButton *minusKey = nullptr;
};
