#include "csvrecord.h"

#include "regularfile.h"

#include <cmath>

namespace {

/// Empty where there is no number.
QByteArray text(double value, int decimals = 3)
{
    return std::isnan(value) ? QByteArray() : QByteArray::number(value, 'f', decimals);
}

} // namespace

CsvRecord::CsvRecord(const QString &givenPath)
    : RecordWriter(givenPath)
    , file(givenPath)
{
}

CsvRecord::~CsvRecord()
{
    finish();
}

Result<std::shared_ptr<RecordWriter>> CsvRecord::create(const QString &path, int products,
                                                        const std::optional<QPointF> &origin)
{
    const std::shared_ptr<CsvRecord> record(new CsvRecord(path));
    record->waiting = "time,x,y,heading,speed,working";
    for (int number = 1; number <= products; ++number) {
        for (const char *name : {"prescribed", "commanded", "applied", "source"})
            record->waiting += QByteArray(",") + name + "_" + QByteArray::number(number);
    }
    if (origin) {
        record->plane = std::make_unique<FieldPlane>(*origin);
        record->waiting += ",lon,lat";
    }
    record->waiting += '\n';
    QString error = openOutput(record->file);
    if (error.isEmpty())
        error = record->keep();
    return {error.isEmpty() ? record : nullptr, error};
}

QString CsvRecord::add(const RecordEntry &entry)
{
    waiting += text(entry.time) + ',' + text(entry.pose.place.x()) + ',' + text(entry.pose.place.y()) + ','
        + text(entry.pose.degrees()) + ',' + text(entry.speed) + ',' + (entry.isWorking ? '1' : '0');
    for (const RecordEntry::Channel &channel : entry.channels) {
        waiting += ',' + text(channel.command.prescribed) + ',' + text(channel.command.commanded) + ','
            + text(channel.applied) + ',' + sourceName(channel.command.source);
    }
    if (plane)
        waiting += degrees(entry.pose.place);
    waiting += '\n';
    return {};
}

QByteArray CsvRecord::degrees(const QPointF &place) const
{
    constexpr int decimals = 9; // A tenth of a millimetre.
    const QPointF degrees = plane->toEarth(place).value_or(QPointF(NAN, NAN));
    return ',' + text(degrees.x(), decimals) + ',' + text(degrees.y(), decimals);
}

QString CsvRecord::keep()
{
    if (!file.isOpen())
        return {};
    const qint64 written = file.write(waiting);
    if (written != waiting.size()) {
        const QString reason = written < 0 ? systemReason(file) : RecordWriter::tr("there is no room left on the disk");
        // No row is left half written.
        file.resize(kept);
        waiting.clear();
        return reason;
    }
    kept += written;
    waiting.clear();
    return {};
}

void CsvRecord::close()
{
    file.close();
}
