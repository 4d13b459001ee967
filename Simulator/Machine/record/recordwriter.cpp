#include "recordwriter.h"

#include "csvrecord.h"
#include "geopackagerecord.h"

#include <QFileInfo>

namespace {

/// What a crash may cost: a second.
constexpr int stepsToKeep = 10;

} // namespace

Result<std::shared_ptr<RecordWriter>> RecordWriter::open(const QString &path, int products,
                                                         const std::optional<QPointF> &origin)
{
    using Opened = Result<std::shared_ptr<RecordWriter>>;
    const QString suffix = QFileInfo(path).suffix().toLower();
    Opened opened;
    if (suffix == QLatin1String("csv"))
        opened = CsvRecord::create(path, products, origin);
    else if (suffix == QLatin1String("gpkg"))
        opened = GeoPackageRecord::create(path, products, origin.value_or(QPointF()));
    else
        opened.error = QStringLiteral("a record is a .csv or .gpkg file");
    return opened.isOk() ? opened : Opened::failure(QStringLiteral("%1: %2").arg(path, opened.error));
}

void RecordWriter::take(const QString &reason)
{
    if (reason.isEmpty())
        return;
    problem = tr("%1: the record ends early: %2").arg(path, reason);
    isOpen = false;
    close();
}

void RecordWriter::write(const RecordEntry &entry)
{
    if (!isOpen)
        return;
    take(add(entry));
    if (!isOpen || ++loose < stepsToKeep)
        return;
    loose = 0;
    take(keep());
}

void RecordWriter::leaveField()
{
    if (!isOpen)
        return;
    const QString lost = keep();
    take(lost.isEmpty() ? tr("another field is open") : lost);
}

void RecordWriter::finish()
{
    if (!isOpen)
        return;
    take(keep());
    if (isOpen)
        close();
    isOpen = false;
}
