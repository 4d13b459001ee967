#pragma once

#include <benchmark/benchmark.h>
#include <memory>

/// Hands results on under the names that benchmarks were registered by, without the number of iterations or what the
/// time is taken by.
class PlainNames : public benchmark::BenchmarkReporter {
public:
    explicit PlainNames(std::unique_ptr<benchmark::BenchmarkReporter> reporter);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    std::unique_ptr<benchmark::BenchmarkReporter> reporter;
};
