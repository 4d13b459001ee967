#pragma once

#include "recordwriter.h"

#include <QObject>

class Simulation;

/// Writes what the simulation does, step by step, until the file is closed or full.
class Recorder : public QObject {
    Q_OBJECT

public:
    /// `simulation` is not owned and outlives the recorder.
    explicit Recorder(Simulation *simulation, QObject *parent = nullptr);

    /// What is written of the last step.
    static RecordEntry entryOf(const Simulation &simulation);
    /// Starts a record (see RecordWriter::open) in place of the one being written. When it cannot, returns the reason,
    /// and the present record goes on, unless it is in the same file. When the present record had ended before its
    /// time, returns why, and the new one is being written.
    QString start(const QString &path);
    /// Ends the record. Returns why it had ended earlier; empty when all is written.
    QString stop();
    bool isRecording() const { return writer != nullptr && writer->error().isEmpty(); }
    /// The name of the record being written, as it was given; empty without one.
    QString file() const { return isRecording() ? writer->file() : QString(); }
    /// How much of the simulation's time the record holds.
    double seconds() const;

Q_SIGNALS:
    /// A record was started or ended.
    void switched();
    /// The record had to end; one line with the file's name.
    void failed(const QString &reason);

private:
    void record();
    /// Ends the record where the machine's places are no longer on the plane that it began on.
    void checkPlane();
    void tellEnd();

    Simulation *simulation;
    std::shared_ptr<RecordWriter> writer;
    std::optional<QPointF> origin; ///< Of the plane that the record began on.
    qint64 steps = 0;              ///< In the record.
};
