#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QAbstractButton;
class QHBoxLayout;

/// The line along the top: buttons, loaded maps, progress of what is loading, and how the vehicle moves.
class StatusBar : public QWidget {
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    /// Adds a button after those at the left end; the bar owns it. A hidden button takes no room.
    void addButton(QAbstractButton *button);
    /// Adds a button at the right end; the bar owns it. touched() does not report it.
    void addTool(QAbstractButton *button);
    /// File names of the loaded maps, oldest first.
    void setMaps(const QStringList &names);
    /// Metres per second, below 0 backwards; 0 reads as stopped.
    void setSpeed(double metresPerSecond, bool metric);
    /// While no time passes, the bar says so in place of the speed.
    void setPaused(bool isPaused);
    /// `fraction` of `file`'s load; an empty file hides the progress.
    void setProgress(const QString &file, double fraction);

Q_SIGNALS:
    /// A button was touched; comes after the button has acted.
    void touched(QAbstractButton *button);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Where the texts lie: between the visible buttons.
    QRect textArea() const;

    QHBoxLayout *buttons; ///< Those at the left end, a stretch, the tools.
    int leftButtons = 0;
    QString maps;
    QString speed;
    bool isMoving = false;
    bool isPaused = false;
    QString loading;
    double loaded = 0.0;
};
