#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

/// The line along the top: loaded maps, progress of what is loading, and how the vehicle moves.
class StatusBar : public QWidget {
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    /// File names of the loaded maps, oldest first.
    void setMaps(const QStringList &names);
    /// Metres per second; 0 reads as stopped.
    void setSpeed(double metresPerSecond, bool metric);
    /// `fraction` of `file`'s load; an empty file takes the bar away.
    void setProgress(const QString &file, double fraction);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString maps;
    QString speed;
    bool isMoving = false;
    QString loading;
    double loaded = 0.0;
};
