#pragma once

#include "mutator.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace fuzz {

/// What one input may take, far above what sound ones need.
struct Bounds {
    std::chrono::milliseconds work{20'000};  ///< of the processor: a busy machine changes nothing
    std::chrono::milliseconds wait{600'000}; ///< by the clock, for input that waits
    std::size_t memoryBytes = std::size_t{3} << 30; ///< of the process, sanitizers included
};

/// Inputs to be read.
struct Job {
    const Format& format;
    const Mutator& mutator;
    std::uint64_t seed = 1;
    std::uint64_t first = 0; ///< number of the first input
    std::uint64_t count = 0;
    std::filesystem::path failures =
        {}; ///< folder for the inputs that fail; made when there is one
    Bounds bounds = {};
    /// Done once in each process that reads, before the first input.
    std::function<void()> prepare = {};
};

/// An input that did not come back.
struct FailedInput {
    std::uint64_t number;
    std::string how;            ///< "signal 6", "exit 1", "no end", "too much memory", …
    std::filesystem::path file; ///< its bytes; empty when it is none in particular
};

struct Outcome {
    std::uint64_t read = 0; ///< inputs, those that failed included
    std::vector<FailedInput> failed;
    std::size_t peakBytes = 0; ///< memory of the largest process that read to its end
};

/// More failures than these are the same fault again.
inline constexpr std::size_t kMostFailures = 20;

/// Reads inputs in a process of its own, so that one that fails ends nothing else: it is told on
/// `told` with seed and number and kept in a file, and the work goes on with the next.
Outcome drive(const Job& job, std::ostream& told);

} // namespace fuzz
