#pragma once

#include <QAbstractButton>
#include <QPainterPath>
#include <QStringList>

struct ButtonLook;

/// A wide row of a list: a symbol, a text, and lines of notes under it, a badge at the right of the first. A checked
/// one stands out by a bar at its left.
class ListRow : public QAbstractButton {
    Q_OBJECT

public:
    explicit ListRow(QWidget *parent = nullptr);

    void setSymbol(const QPainterPath &symbol);
    /// Takes it as VisibleText.
    void setText(const QString &text);
    /// Each line is shortened where it is too long.
    void setNotes(const QStringList &lines);
    void setBadge(const QString &text);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawTexts(QPainter &painter, const QRect &area, const ButtonLook &look) const;

    QPainterPath symbol;
    QStringList notes;
    QString badge;
};
