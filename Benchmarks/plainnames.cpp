#include "plainnames.h"

#include <utility>

PlainNames::PlainNames(std::unique_ptr<benchmark::BenchmarkReporter> givenReporter)
    : reporter(std::move(givenReporter))
{
}

bool PlainNames::ReportContext(const Context &context)
{
    reporter->SetOutputStream(&GetOutputStream());
    reporter->SetErrorStream(&GetErrorStream());
    return reporter->ReportContext(context);
}

void PlainNames::ReportRuns(const std::vector<Run> &runs)
{
    std::vector<Run> renamed = runs;
    for (Run &run : renamed) {
        run.run_name.iterations.clear();
        run.run_name.time_type.clear();
    }
    reporter->ReportRuns(renamed);
}

void PlainNames::Finalize()
{
    reporter->Finalize();
}
