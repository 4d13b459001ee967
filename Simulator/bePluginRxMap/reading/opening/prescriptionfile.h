#pragma once

#include "unpackingfolder.h"

#include <QString>
#include <QStringList>

#include <gdal_priv.h>
#include <memory>

class GdalSession;

/// A prescription file that GDAL reads, opened: a file, or one inside an archive ("fields.zip/north/rates.shp"), which
/// is unpacked into a folder that is deleted with this object. A path is only ever the name of a file, whatever else
/// GDAL could take it for; nothing is written beside the file. Blocks; use in the loading thread.
class PrescriptionFile {
public:
    explicit PrescriptionFile(const QString &path);

    /// The endings of such files' names, without the point.
    static QStringList endings();
    /// False when the file cannot be used; the reason, without the file's name, is then in error(). `session`: the one
    /// that takes GDAL's reports.
    bool open(const GdalSession &session);
    GDALDataset &dataset() const { return *data; }
    /// Name of the file beside it that should define its coordinate system; empty where no file says anything.
    QString definitionFile() const;
    QString error() const { return reason; }
    /// If the path is that of an archive with several prescriptions: the path of each.
    QStringList candidates() const { return several; }

private:
    bool fail(const QString &text);
    bool check();
    bool unpack();
    /// Copies a database that has a journal beside it; false when that fails.
    bool takeJournal();
    bool isShapefile() const;
    CPLStringList options() const;

    QString path;
    bool isJournaled = false;
    std::unique_ptr<UnpackingFolder> unpacked;
    GDALDatasetUniquePtr data;
    QString reason;
    QStringList several;
};
