#include "readertest.h"

void ReaderTest::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    map = SourceMap();
    error.clear();
}

bool ReaderTest::read(const QString &file, const QStringList &columns)
{
    const LoadControl control;
    PrescriptionReader reader(file, columns, control);
    const bool isRead = reader.read(map);
    error = reader.error();
    return isRead;
}
