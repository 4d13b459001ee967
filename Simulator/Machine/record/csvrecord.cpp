#include "csvrecord.h"

#include "regularfile.h"

#include <cmath>

namespace {

/// Empty where there is no number.
QByteArray text(double value)
{
    return std::isnan(value) ? QByteArray() : QByteArray::number(value, 'f', 3);
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

Result<std::shared_ptr<RecordWriter>> CsvRecord::create(const QString &path, int products)
{
    const std::shared_ptr<CsvRecord> record(new CsvRecord(path));
    record->waiting = "time,x,y,heading,speed,working";
    for (int number = 1; number <= products; ++number) {
        for (const char *name : {"prescribed", "commanded", "applied", "source"})
            record->waiting += QByteArray(",") + name + "_" + QByteArray::number(number);
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
    waiting += '\n';
    return {};
}

QString CsvRecord::keep()
{
    if (!file.isOpen())
        return {};
    const qint64 written = file.write(waiting);
    if (written != waiting.size()) {
        const QString reason = written < 0 ? file.errorString() : QStringLiteral("there is no room left on the disk");
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
