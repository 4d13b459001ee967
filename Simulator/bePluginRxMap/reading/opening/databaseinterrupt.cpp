#include "databaseinterrupt.h"

#include <gdal_priv.h>
#include <sqlite3.h>

namespace {

/// SQLite's own steps between two checks, some hundredths of a millisecond.
constexpr int stepsBetween = 1000;

int isCancelled(void *flag)
{
    return static_cast<const std::atomic<bool> *>(flag)->load(std::memory_order_relaxed) ? 1 : 0;
}

} // namespace

DatabaseInterrupt::DatabaseInterrupt(GDALDataset &dataset, const std::atomic<bool> *cancelled)
    : database(cancelled == nullptr ? nullptr : dataset.GetInternalHandle("SQLITE_HANDLE"))
{
    if (database != nullptr)
        sqlite3_progress_handler(static_cast<sqlite3 *>(database), stepsBetween, isCancelled,
                                 const_cast<std::atomic<bool> *>(cancelled));
}

DatabaseInterrupt::~DatabaseInterrupt()
{
    if (database != nullptr)
        sqlite3_progress_handler(static_cast<sqlite3 *>(database), 0, nullptr, nullptr);
}
