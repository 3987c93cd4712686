#pragma once

#include <cstddef>

/// What this process has of what can run out.
struct ProcessState {
    std::size_t heapBytes = 0;     ///< allocated and not given back
    std::size_t residentBytes = 0; ///< in memory, what is free in the heap given back before
    std::size_t descriptors = 0;
    std::size_t threads = 0;

    static ProcessState now();
};
