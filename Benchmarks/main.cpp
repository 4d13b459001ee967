// Frames are drawn where there is a display; all else is measured without one.

#include "plainnames.h"

#include <QGuiApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>

int main(int argumentCount, char **arguments)
{
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY");
    std::unique_ptr<QCoreApplication> application;
    if (hasDisplay)
        application = std::make_unique<QGuiApplication>(argumentCount, arguments);
    else
        application = std::make_unique<QCoreApplication>(argumentCount, arguments);
    // A reporter for a file may only be given with a file.
    const bool hasOutputFile = std::any_of(arguments + 1, arguments + argumentCount, [](const char *argument) {
        return std::string(argument).rfind("--benchmark_out=", 0) == 0;
    });
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments))
        return 1;
    PlainNames display{std::unique_ptr<benchmark::BenchmarkReporter>(benchmark::CreateDefaultDisplayReporter())};
    PlainNames file(std::make_unique<benchmark::JSONReporter>());
    benchmark::RunSpecifiedBenchmarks(&display, hasOutputFile ? &file : nullptr);
    benchmark::Shutdown();
    return 0;
}
