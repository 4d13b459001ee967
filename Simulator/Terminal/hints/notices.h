#pragma once

#include <QList>
#include <QObject>
#include <QPair>

class HintCard;
class TerminalWindow;

/// Tells the operator on a card what has come up. While something covers the display, it waits.
class Notices : public QObject {
    Q_OBJECT

public:
    /// `window` is not owned and outlives this.
    explicit Notices(TerminalWindow *window);

    /// The newest takes the place of the one that is shown.
    void tell(const QString &title, const QString &line);
    /// Takes the card away: the operator has gone on.
    void leave();
    void setCovered(bool isDisplayCovered);

private:
    void show(const QString &title, const QString &line);
    void showNext();

    TerminalWindow *window;
    HintCard *card;
    bool isCovered = false;
    QList<QPair<QString, QString>> waiting; ///< Titles and lines, the oldest first.
};
