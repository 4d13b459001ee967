#include "readertest.h"

#include "columnpolicy.h"

void ReaderTest::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    map = RawPrescription();
    error.clear();
}

bool ReaderTest::replaceIn(const char *name, const QByteArray &from, const QByteArray &to) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray bytes = file.readAll();
    if (!bytes.contains(from))
        return false;
    bytes.replace(from, to);
    return file.resize(0) && file.seek(0) && file.write(bytes) == bytes.size();
}

bool ReaderTest::read(const QString &file, const QStringList &columns)
{
    return read(ReadRequest{file, columns});
}

bool ReaderTest::read(const ReadRequest &request)
{
    const LoadControl control;
    map = RawPrescription();
    PrescriptionReader reader(request, ColumnPolicy::chanceOf, control);
    const bool isRead = reader.read(map);
    error = reader.error();
    return isRead;
}
