#pragma once

#include <cstdio>

namespace bench {

/// Prints the most memory this process has had resident, in KB: "VmHWM 12345". Nothing where the
/// system has no /proc.
inline void printPeakMemory() {
    std::FILE* status = std::fopen("/proc/self/status", "r");
    if (!status)
        return;
    char line[256];
    long kilobytes = 0;
    while (std::fgets(line, sizeof line, status))
        if (std::sscanf(line, "VmHWM: %ld", &kilobytes) == 1)
            std::printf("VmHWM %ld\n", kilobytes);
    std::fclose(status);
}

} // namespace bench
