#include "openedfiles.h"

#include "Backend/prescriptionbackend.h"
#include "machine.h"

QList<FileEntry> OpenedFiles::of(const Machine &machine)
{
    QList<FileEntry> entries;
    const QList<LoadReport> maps = machine.backend()->maps();
    for (const LoadReport &map : maps) {
        QStringList products;
        const QList<int> numbers = machine.columnsOf(map.group).keys();
        for (const int number : numbers)
            products.append(machine.products().at(number - 1).name);
        const QString note =
            products.isEmpty() ? tr("feeds no product") : tr("feeds %1").arg(products.join(QStringLiteral(", ")));
        entries.append({map.path, PrescriptionBackend::nameOf(map.path), false, PrescriptionBackend::isThere(map.path),
                        note, map.group});
    }
    return entries;
}
