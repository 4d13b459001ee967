#include "consoleline.h"

#include <cstdio>

namespace {

void writeLine(std::FILE *stream, QString line)
{
    for (QChar &letter : line) {
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char('?');
    }
    std::fprintf(stream, "%s\n", line.toLocal8Bit().constData());
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

void writeOutputText(const QByteArray &text)
{
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    std::fflush(stdout);
}

QString outputProblem()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? QString()
                                                                : QStringLiteral("standard output cannot be written");
}
