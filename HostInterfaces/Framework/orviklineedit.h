#pragma once

#include "Framework/frameworkglobal.h"

#include <QDir>
#include <QFont>
#include <QPoint>
#include <QScopedPointer>
#include <QString>
#include <QWidget>

class OrvikLineEditPrivate;

/// A numeric entry field. A touch opens the on-screen keypad; a hardware keyboard works too. Text is in the C locale.
/// The first keystroke of an entry replaces the text; a keystroke is refused when the resulting text neither is nor
/// could become a number within the limits. There are two kinds of limits; those set last hold.
class FRAMEWORK_EXPORT OrvikLineEdit : public QWidget {
    Q_OBJECT

public:
    OrvikLineEdit(int id, QDir imageDir, QPoint position, QWidget *parent);
    ~OrvikLineEdit() override;

    int id() const;
    /// At most `integerDigits` digits before the decimal point and `decimals` after it; negative numbers are refused.
    void setNumericSizeLimits(unsigned int integerDigits, unsigned int decimals);
    /// Values from `minimum` to `maximum` with at most `decimals` decimals.
    void setNumericRange(double minimum, double maximum, unsigned int decimals);
    void setTextFont(QFont font);
    /// Shows `text`, whatever the limits are; reports nothing.
    void setText(QString text);
    QString getText() const;

Q_SIGNALS:
    /// The operator changed the text; comes at every keystroke that does.
    void textChanged(int id);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QScopedPointer<OrvikLineEditPrivate> d;
};
