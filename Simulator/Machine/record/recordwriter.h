#pragma once

#include "recordentry.h"
#include "result.h"

#include <QCoreApplication>
#include <QPointF>
#include <QString>

#include <memory>
#include <optional>

/// A file that takes a drive, step by step.
class RecordWriter {
    Q_DECLARE_TR_FUNCTIONS(RecordWriter)

public:
    virtual ~RecordWriter() = default;

    /// Opens a .csv or .gpkg for that many products, replacing a file of that name; `origin` (degrees) is where the
    /// local plane touches the earth, where that is known. The reason when it cannot be written.
    static Result<std::shared_ptr<RecordWriter>> open(const QString &path, int products,
                                                      const std::optional<QPointF> &origin);

    /// The file's name, as it was given.
    QString file() const { return path; }
    /// Adds a step. Nothing more is written after a failure.
    void write(const RecordEntry &entry);
    /// Writes what is still held back; nothing can be written afterwards.
    void finish();
    /// The same where the drive goes on in another field, whose places are not on this record's plane.
    void leaveField();
    /// Why writing ended before its time, one line with the file's name; empty while all is well.
    QString error() const { return problem; }

protected:
    explicit RecordWriter(const QString &givenPath)
        : path(givenPath)
    {
    }

    /// Adds a step to what the next keep() makes safe; the reason when it cannot.
    virtual QString add(const RecordEntry &entry) = 0;
    /// Makes what was added safe, or takes it back; the reason when it had to be taken back.
    virtual QString keep() = 0;
    virtual void close() = 0;

    const QString path;

private:
    void take(const QString &reason);

    /// Steps that are not safe yet.
    int loose = 0;
    bool isOpen = true;
    QString problem;
};
