#include "errorline.h"

#include <QString>

#include <cstdio>

void writeErrorLine(const QString &line)
{
    QString written = line;
    for (QChar &letter : written) {
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char('?');
    }
    std::fprintf(stderr, "%s\n", written.toLocal8Bit().constData());
    std::fflush(stderr);
}
