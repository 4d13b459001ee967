#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class TouchButton;

/// A card over the map with a text, shown until its button is touched, Escape is pressed or another card takes its
/// place. The map beside it stays in use.
class HintCard : public QWidget {
    Q_OBJECT

public:
    /// Hidden at first. Scripts know the card and its button by these names.
    HintCard(const QString &name, const QString &buttonName, QWidget *parent);

    /// Shows the card in the middle of `area` (pixels of its parent), at its lower end.
    void tell(const QString &title, const QStringList &lines, const QRect &area);
    /// Hides the card without emitting closed().
    void leave();

Q_SIGNALS:
    /// The operator has closed the card.
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void close();
    bool hasKeyboard() const;

    QPointer<QWidget> before; ///< What had the keyboard when the card opened.
    QLabel *heading;
    QLabel *body;
    TouchButton *button;
};
