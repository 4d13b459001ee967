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

    /// Puts a button, which becomes the bar's, behind those at its left end. One that is hidden takes no room.
    void addButton(QAbstractButton *button);
    /// Puts a button, which becomes the bar's, at its right end. A touch of it is not told by touched().
    void addTool(QAbstractButton *button);
    /// File names of the loaded maps, oldest first.
    void setMaps(const QStringList &names);
    /// Metres per second, below 0 backwards; 0 reads as stopped.
    void setSpeed(double metresPerSecond, bool metric);
    /// While no time passes, that is told in place of the speed.
    void setPaused(bool isPaused);
    /// `fraction` of `file`'s load; an empty file takes the bar away.
    void setProgress(const QString &file, double fraction);

Q_SIGNALS:
    /// After what the button does.
    void touched(QAbstractButton *button);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Where the texts lie: between the buttons that are seen.
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
