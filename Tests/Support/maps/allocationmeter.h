#pragma once

#include <cstddef>

/// Counts what the process allocates while one of these lives. For one thread at a time.
class AllocationMeter {
public:
    AllocationMeter();
    ~AllocationMeter();
    AllocationMeter(const AllocationMeter &) = delete;
    AllocationMeter &operator=(const AllocationMeter &) = delete;

    /// The most bytes that were in use at one time beyond those in use at the start, as the allocator rounds them.
    std::size_t peak() const;

    /// What is allocated and freed while one of these lives is not counted.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        bool wasMetering;
    };
};
