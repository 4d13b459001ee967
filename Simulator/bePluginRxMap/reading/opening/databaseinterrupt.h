#pragma once

#include <QtGlobal>

#include <atomic>

class GDALDataset;

/// While it lives, an open database gives up its work as soon as `cancelled` is set; GDAL then reports a failure. A
/// layer may be a view, whose next record may take forever. Other formats are left alone.
class DatabaseInterrupt {
public:
    /// Neither is owned; both outlive this. `cancelled` may be null.
    DatabaseInterrupt(GDALDataset &dataset, const std::atomic<bool> *cancelled);
    ~DatabaseInterrupt();

private:
    Q_DISABLE_COPY(DatabaseInterrupt)

    /// An sqlite3; null for other formats.
    void *database;
};
