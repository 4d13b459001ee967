#pragma once

#include "result.h"

#include <QObject>
#include <QString>

class Recorder;
class Simulation;

/// The record that the operator makes of a drive: each one a new file in a folder, named after field and moment.
class DriveRecord : public QObject {
    Q_OBJECT

public:
    /// `simulation` and `recorder` are not owned and outlive this. A missing `folder` is made.
    DriveRecord(Simulation *simulation, Recorder *recorder, const QString &folder, QObject *parent = nullptr);

    /// The operator's documents.
    static QString usualFolder();

    /// A script's record counts as well.
    bool isOn() const;
    /// Starts a record, or ends the one being written.
    void setOn(bool isWanted);
    /// Ends the record if it is in this file, which is then whole.
    void endIfAt(const QString &path);
    /// How much time the record holds, in minutes and seconds.
    QString elapsed() const;

Q_SIGNALS:
    /// Something that this reports may have changed.
    void changed();
    /// The record is complete and can be replayed.
    void kept(const QString &path);
    /// What the operator should know: where the record is, or why there is none.
    void told(const QString &title, const QString &line);

private:
    void start();
    void stop();
    /// Makes the file of a new record, so that nobody else takes its name; the reason when it cannot.
    Result<QString> makeFile() const;
    QString fieldName() const;

    Simulation *simulation;
    Recorder *recorder;
    QString folder;
};
