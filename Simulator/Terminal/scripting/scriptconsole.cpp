#include "scriptconsole.h"

#include <cstdio>

void ScriptConsole::writeLine(const QString &line) const
{
    std::fprintf(stdout, "%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}
