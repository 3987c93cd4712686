#include "endurance/process_state.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::size_t entriesIn(const char* directory) {
    const std::filesystem::directory_iterator all(directory);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

} // namespace

ProcessState ProcessState::now() {
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    std::size_t pages = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return {heap.uordblks + heap.hblkhd, resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)),
            entriesIn("/proc/self/fd"), entriesIn("/proc/self/task")};
}
