#pragma once

#include "fixture.h"
#include "layerwriter.h"
#include "prescriptionreader.h"
#include "testbase.h"

#include <QTemporaryDir>

/// Base of the tests of the reader: an empty folder for each test function, and a map to read into.
class ReaderTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    /// Of a file in the test's folder.
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    /// Writes `to` for `from` throughout a file in the test's folder; false when that does not hold `from`.
    bool replaceIn(const char *name, const QByteArray &from, const QByteArray &to) const;
    /// Reads into `map`; what kept it from that is then in `error`.
    bool read(const QString &file, const QStringList &columns = {});
    bool read(const ReadRequest &request);

    QScopedPointer<QTemporaryDir> folder;
    RawPrescription map;
    QString error;
};
