#include "streamcapture.h"

#include "files.h"

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
    return QString::fromUtf8(readFile(file.fileName()));
}
