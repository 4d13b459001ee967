#include "consoleline.h"

#include "visibletext.h"

#include <cstdio>

namespace {

void writeLine(std::FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", VisibleText::of(line).toLocal8Bit().constData());
    std::fflush(stream);
}

} // namespace

void writeOutputLine(const QString &line)
{
    writeLine(stdout, line);
}

void writeErrorLine(const QString &line)
{
    writeLine(stderr, line);
}

void writeOutputJson(const QByteArray &json)
{
    const QByteArray text = VisibleText::ofJson(json);
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    std::fflush(stdout);
}

QString outputProblem()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? QString()
                                                                : QStringLiteral("standard output cannot be written");
}
