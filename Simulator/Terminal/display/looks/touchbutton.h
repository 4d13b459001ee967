#pragma once

#include <QAbstractButton>
#include <QPainterPath>

struct ButtonLook;

/// A big flat button of the terminal's own panels. A checked one carries the accent colour, one that has the keyboard a
/// frame in that colour. Tab reaches it, Enter and Space touch it; arrow keys are left to what it lies on.
class TouchButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit TouchButton(const QString &text, QWidget *parent = nullptr);

    /// Takes it as VisibleText.
    void setText(const QString &text);
    /// A second, smaller line under the text.
    void setNote(const QString &note);
    /// Whether it stands out as something that needs the operator's attention.
    void setCaution(bool isWanted);
    bool isCaution() const { return wantsCaution; }
    /// A picture in place of the text, which then only names the button.
    void setSymbol(const QPainterPath &symbol);
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawTexts(QPainter &painter, const ButtonLook &look) const;

    QString note;
    bool wantsCaution = false;
    QPainterPath symbol;
};
