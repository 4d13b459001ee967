#pragma once

#include <QChar>
#include <QCoreApplication>
#include <QString>

/// The text of a numeric field and the keystrokes that may change it. Knows no widget. A keystroke is refused when the
/// resulting text neither is nor could become a number within the limits.
class NumericEntry {
    Q_DECLARE_TR_FUNCTIONS(NumericEntry)

public:
    /// Why a keystroke is not taken.
    enum class Refusal { None, NoNumber, NoDecimals, TooManyDecimals, OutOfRange };

    /// At most `integerDigits` digits before the point and `decimals` after it, no negative numbers. Replaces earlier
    /// limits.
    void setSizeLimits(unsigned int integerDigits, unsigned int decimals);
    /// Numbers from `minimum` to `maximum` with at most `decimals` decimals. Replaces earlier limits.
    void setRange(double minimum, double maximum, unsigned int decimals);
    /// The smallest and the largest number, as "0 – 5000"; empty where there are no limits.
    QString limitsText() const;
    bool takesPoint() const;
    bool takesMinus() const;

    /// Any text, within the limits or not. The next keystroke replaces it.
    void setText(const QString &text);
    QString text() const;
    /// Lets the next keystroke replace the text.
    void startOver();
    /// Whether the next keystroke replaces the text.
    bool startsOver() const;

    /// The reason for which type() would refuse the character.
    Refusal refusalOf(QChar character) const;
    /// The reason as the operator reads it; empty for none.
    QString refusalText(Refusal refusal) const;
    /// Types a digit, the point or the minus. True when that changed the text; a refused key changes nothing.
    bool type(QChar character);
    /// Removes the last character, or the whole text when it is to be replaced. True when that changed the text.
    bool eraseLast();
    /// Removes the whole text. True when that changed it.
    bool clear();

private:
    QString withCharacter(QChar character) const;
    Refusal check(const QString &candidate) const;
    bool canReachRange(double magnitude, double smallest, double largest) const;
    bool change(const QString &newText);

    bool isLimited = false;
    double rangeMinimum = -1e15;
    double rangeMaximum = 1e15;
    unsigned int decimalLimit = 6;
    QString current;
    bool replaces = true;
};
