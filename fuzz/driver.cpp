#include "driver.h"

#include "seeds.h"

#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <new>
#include <optional>

namespace fuzz {

namespace {

using Clock = std::chrono::steady_clock;

/// How often the reading process is looked at.
constexpr int kLookMilliseconds = 100;

/// What the reading process tells while it lives, and leaves when it dies.
struct Progress {
    std::atomic<std::uint64_t> number; ///< of the input that is being read, or the next one
};

/// Memory that both processes see.
class SharedProgress {
public:
    SharedProgress()
        : memory_(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE,
                       MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
        if (memory_ == MAP_FAILED)
            throw std::bad_alloc();
        new (memory_) Progress{};
    }
    ~SharedProgress() { munmap(memory_, sizeof(Progress)); }
    SharedProgress(const SharedProgress&) = delete;
    SharedProgress& operator=(const SharedProgress&) = delete;

    std::atomic<std::uint64_t>& number() { return static_cast<Progress*>(memory_)->number; }

private:
    void* memory_;
};

[[noreturn]] void readAll(const Job& job, std::atomic<std::uint64_t>& number) {
    if (job.prepare)
        job.prepare();
    for (; number < job.first + job.count; ++number) {
        const Bytes input = job.mutator.input(job.seed, number);
        job.format.readOne(input);
    }
    std::exit(0); // not _exit: leaks are told now
}

std::size_t memoryOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/statm");
    std::size_t whole = 0;
    std::size_t resident = 0;
    file >> whole >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// What a process has taken of the processors so far.
std::chrono::nanoseconds workOf(pid_t process) {
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(process, &clock) == 0)
        clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// How a process has ended; empty when it ended well.
std::string endOf(int status) {
    if (WIFSIGNALED(status))
        return "signal " + std::to_string(WTERMSIG(status));
    const int code = WEXITSTATUS(status);
    return code == 0 ? std::string() : "exit " + std::to_string(code);
}

struct End {
    std::string how; ///< empty when it ended well
    std::size_t peakBytes = 0;
};

/// Waits for the end of a process that reads, and brings it about when it takes too much. `closes`
/// is the end of a pipe whose other end goes with the process.
End watch(pid_t process, int closes, const std::atomic<std::uint64_t>& number, Bounds bounds) {
    std::optional<std::string> ended;
    std::uint64_t latest = number;
    Clock::time_point since = Clock::now();
    std::chrono::nanoseconds workBefore{0};
    pollfd look{closes, POLLIN, 0};
    while (poll(&look, 1, kLookMilliseconds) == 0 && !ended) {
        if (number != latest) {
            latest = number;
            since = Clock::now();
            workBefore = workOf(process);
        }
        if (workOf(process) - workBefore > bounds.work || Clock::now() - since > bounds.wait)
            ended = "no end";
        else if (memoryOf(process) > bounds.memoryBytes)
            ended = "too much memory";
        if (ended)
            kill(process, SIGKILL);
    }
    int status = 0;
    rusage used{};
    wait4(process, &status, 0, &used);
    return {ended ? *ended : endOf(status), static_cast<std::size_t>(used.ru_maxrss) * 1024};
}

/// Reads from `number` on until all is read or something fails.
End readInAProcess(const Job& job, std::atomic<std::uint64_t>& number) {
    int ends[2];
    if (pipe(ends) != 0)
        return {"no pipe"};
    std::cout.flush();
    std::cerr.flush();
    const pid_t process = fork();
    if (process == 0) {
        close(ends[0]);
        readAll(job, number);
    }
    close(ends[1]);
    if (process < 0) {
        close(ends[0]);
        return {"no process"};
    }
    End end = watch(process, ends[0], number, job.bounds);
    close(ends[0]);
    removeScratchFolderOf(process);
    return end;
}

/// Keeps the input; nothing but its number when no folder is given.
FailedInput keepFailed(const Job& job, std::uint64_t number, const std::string& how) {
    FailedInput failed{number, how, {}};
    if (job.failures.empty())
        return failed;
    std::filesystem::create_directories(job.failures);
    failed.file = job.failures / (std::string(job.format.name) + '-' + std::to_string(job.seed) +
                                  '-' + std::to_string(number));
    writeBytes(failed.file, job.mutator.input(job.seed, number));
    return failed;
}

} // namespace

Outcome drive(const Job& job, std::ostream& told) {
    SharedProgress progress;
    std::atomic<std::uint64_t>& number = progress.number();
    number = job.first;
    const std::uint64_t end = job.first + job.count;
    Outcome outcome;
    while (number < end && outcome.failed.size() < kMostFailures) {
        const End read = readInAProcess(job, number);
        outcome.peakBytes = std::max(outcome.peakBytes, read.peakBytes);
        if (read.how.empty())
            continue;
        const bool wasReading = number < end;
        outcome.failed.push_back(wasReading ? keepFailed(job, number, read.how)
                                            : FailedInput{end, read.how + " at the end", {}});
        told << job.format.name << ", seed " << job.seed << ", number " << number << ": "
             << outcome.failed.back().how << ' ' << outcome.failed.back().file.string()
             << std::endl;
        if (wasReading)
            ++number;
    }
    outcome.read = number - job.first;
    return outcome;
}

} // namespace fuzz
