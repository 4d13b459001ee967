#pragma once

#include "recordwriter.h"

#include <QFile>

/// A record as comma-separated values, one row per step.
class CsvRecord : public RecordWriter {
public:
    /// The reason, without the file's name, when it cannot be written.
    static Result<std::shared_ptr<RecordWriter>> create(const QString &path, int products);
    ~CsvRecord() override;

protected:
    QString add(const RecordEntry &entry) override;
    QString keep() override;
    void close() override;

private:
    explicit CsvRecord(const QString &path);

    QFile file;
    QByteArray waiting;
    /// Bytes that are whole rows.
    qint64 kept = 0;
};
