#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>
#include <utility>
#include <vector>

/// Processor time of the process so far, all its threads, seconds.
inline double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// Processor time, seconds, of one call: other programs of a busy machine disturb it little.
template <typename Work> double timed(Work &&work)
{
    const double start = processorTime();
    work();
    return processorTime() - start;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct NoPreparation {
    void operator()() const { }
};

/// Runs both in turn in every iteration, the order swapped each time, and sets `counter` to the median of the
/// iterations' quotients: what slows the machine for a while slows both sides of a quotient. `prepare` comes before
/// either side and is not timed.
template <typename Work, typename Baseline, typename Preparation = NoPreparation>
void compareSideBySide(benchmark::State &state, const char *counter, Work &&work, Baseline &&baseline,
                       Preparation &&prepare = {})
{
    std::vector<double> workTimes;
    std::vector<double> baselineTimes;
    const auto run = [&prepare](auto &side, std::vector<double> &times) {
        prepare();
        times.push_back(timed(side));
    };
    bool swapped = false;
    for (auto _ : state) {
        if (swapped)
            run(baseline, baselineTimes);
        run(work, workTimes);
        if (!swapped)
            run(baseline, baselineTimes);
        swapped = !swapped;
        state.SetIterationTime(workTimes.back());
    }
    std::vector<double> quotients(workTimes.size());
    std::transform(workTimes.begin(), workTimes.end(), baselineTimes.begin(), quotients.begin(),
                   std::divides<double>());
    state.counters[counter] = median(std::move(quotients));
    state.counters["seconds"] = median(workTimes);
    state.counters["baseline_seconds"] = median(baselineTimes);
}
