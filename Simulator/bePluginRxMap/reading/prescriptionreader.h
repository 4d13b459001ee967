#pragma once

#include "loadcontrol.h"
#include "rawprescription.h"
#include "readrequest.h"

class GdalSession;
class OGRLayer;
class PrescriptionFile;

/// Reads the polygons and the likely or wanted columns of a prescription file or task data. Blocks; use in the loading
/// thread.
class PrescriptionReader {
public:
    PrescriptionReader(const ReadRequest &request, ColumnJudge judge, const LoadControl &control);

    /// Whether the path may be that of a prescription: a file of that name, or a folder of task data. No file is
    /// opened, since reading may block. Files without a size do not count: among them are the system's own, which have
    /// content all the same.
    static bool mayRead(const QString &path);

    /// False when the file cannot be used; the reason, without the file's name, is then in error().
    bool read(RawPrescription &map);
    /// Reads the names of all columns of the table that has the most of the wanted ones, but no records. False as in
    /// read().
    bool readColumnNames(QStringList &names);
    QString error() const { return reason; }

private:
    bool fail(const QString &text);
    /// Takes over why the file cannot be opened, and what it offers instead.
    bool refuse(const PrescriptionFile &file, RawPrescription &map);
    bool checkTask();
    bool readLayer(const PrescriptionFile &file, const GdalSession &session, RawPrescription &map);
    static void readReference(OGRLayer &layer, const PrescriptionFile &file, RawPrescription &map);

    ReadRequest request;
    ColumnJudge judge;
    const LoadControl &control;
    QString reason;
};
