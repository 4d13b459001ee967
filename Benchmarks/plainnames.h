#pragma once

#include <benchmark/benchmark.h>
#include <memory>

/// Passes results on under the names by which the benchmarks were registered, without the number of iterations or the
/// kind of time.
class PlainNames : public benchmark::BenchmarkReporter {
public:
    explicit PlainNames(std::unique_ptr<benchmark::BenchmarkReporter> reporter);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    std::unique_ptr<benchmark::BenchmarkReporter> reporter;
};
