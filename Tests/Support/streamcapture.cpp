#include "streamcapture.h"

#include <QFile>

#include <unistd.h>

StreamCapture::StreamCapture(std::FILE *captured)
    : stream(captured)
{
    std::fflush(stream);
    former = dup(fileno(stream));
    file.open();
    dup2(file.handle(), fileno(stream));
}

StreamCapture::~StreamCapture()
{
    std::fflush(stream);
    dup2(former, fileno(stream));
    close(former);
}

QString StreamCapture::written() const
{
    QFile reader(file.fileName());
    return reader.open(QIODevice::ReadOnly) ? QString::fromUtf8(reader.readAll()) : QString();
}
