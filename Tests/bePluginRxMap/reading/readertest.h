#pragma once

#include "fixture.h"
#include "layerwriter.h"
#include "prescriptionreader.h"
#include "testbase.h"

#include <QTemporaryDir>

/// Base of the tests of the reader: each test function gets an empty folder, and a map to read into.
class ReaderTest : public TestBase {
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    /// Path of a file in the test's folder.
    QString path(const char *name) const { return folder->filePath(QLatin1String(name)); }
    /// Replaces `from` by `to` throughout a file in the test's folder; false when the file does not contain `from`.
    bool replaceIn(const char *name, const QByteArray &from, const QByteArray &to) const;
    /// Reads into `map`; if that fails, the reason is in `error`.
    bool read(const QString &file, const QStringList &columns = {});
    bool read(const ReadRequest &request);

    QScopedPointer<QTemporaryDir> folder;
    RawPrescription map;
    QString error;
};
