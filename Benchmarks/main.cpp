// Frames are drawn where there is a display; all else is measured without one.

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <memory>

int main(int argumentCount, char **arguments)
{
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    std::unique_ptr<QCoreApplication> application;
    if (hasDisplay)
        application = std::make_unique<QGuiApplication>(argumentCount, arguments);
    else
        application = std::make_unique<QCoreApplication>(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
