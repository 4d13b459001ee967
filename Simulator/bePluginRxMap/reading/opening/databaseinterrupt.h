#pragma once

#include <QtGlobal>

#include <atomic>

class GDALDataset;

/// While it lives, what an open database does is given up as soon as `cancelled` is set; GDAL reports a failure then.
/// A layer may be a view, whose next record may take without end. Other formats are left alone.
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
