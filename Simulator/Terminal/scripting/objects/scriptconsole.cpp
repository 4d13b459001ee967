#include "scriptconsole.h"

#include "visibletext.h"

#include <cstdio>

void ScriptConsole::writeLine(const QString &line) const
{
    std::fprintf(stdout, "%s\n", VisibleText::of(line, QStringLiteral("\n\t")).toUtf8().constData());
    std::fflush(stdout);
}
