#pragma once

#include "fieldplane.h"
#include "recordwriter.h"

#include <QFile>

/// A record as comma-separated values, one row per step; with degrees behind all else where `origin` is known.
class CsvRecord : public RecordWriter {
public:
    /// The reason, without the file's name, when it cannot be written.
    static Result<std::shared_ptr<RecordWriter>> create(const QString &path, int products,
                                                        const std::optional<QPointF> &origin);
    ~CsvRecord() override;

protected:
    QString add(const RecordEntry &entry) override;
    QString keep() override;
    void close() override;

private:
    explicit CsvRecord(const QString &path);

    QByteArray degrees(const QPointF &place) const;

    QFile file;
    std::unique_ptr<FieldPlane> plane; ///< Null where nobody knows where the field is.
    QByteArray waiting;
    /// Bytes that are whole rows.
    qint64 kept = 0;
};
