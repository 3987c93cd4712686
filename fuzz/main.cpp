// Reads changed inputs of one format after the other:
//   formats_fuzz [FORMAT...] [--count N] [--seed S] [--first N] [--seeds FOLDER] [--failures
//   FOLDER] formats_fuzz FORMAT --file INPUT    reads one input in this process, to look into a
//   failure formats_fuzz --list                 names the formats

#include "driver.h"
#include "seeds.h"

#include <QGuiApplication>

#include <CLI/CLI.hpp>
#include <chrono>
#include <iostream>

namespace {

struct Call {
    std::vector<std::string> names;
    std::uint64_t count = 1000;
    std::uint64_t seed = 1;
    std::uint64_t first = 0;
    std::vector<std::filesystem::path> seeds;
    std::filesystem::path failures = "failed-inputs";
    std::filesystem::path file;
    std::filesystem::path written;
    bool list = false;
};

int parse(int argc, char** argv, Call& call) {
    CLI::App line{"Reads changed inputs of what the program reads"};
    line.add_option("format", call.names, "formats; all of them when none is named");
    line.add_option("--count", call.count, "inputs of each format");
    line.add_option("--seed", call.seed, "the same seed gives the same inputs");
    line.add_option("--first", call.first, "number of the first input");
    line.add_option("--seeds", call.seeds, "folders with more seeds");
    line.add_option("--failures", call.failures, "folder for inputs that fail");
    line.add_option("--file", call.file, "reads this input, here");
    line.add_option("--write-seeds", call.written, "writes the seeds into this folder");
    line.add_flag("--list", call.list, "names the formats");
    try {
        line.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return line.exit(error);
    }
    return -1;
}

/// What formats that draw need, in the process that reads.
void startQt() {
    static int argc = 1;
    static char name[] = "formats_fuzz";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A damaged picture is told once for each; who looks for faults waits for those of sanitizers.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static QGuiApplication application(argc, argv);
}

bool readFormat(const fuzz::Format& format, const Call& call) {
    const auto started = std::chrono::steady_clock::now();
    auto seeds = fuzz::readSeeds(format, FUZZ_SOURCES, call.seeds);
    if (seeds.empty()) {
        std::cout << format.name << ": no seeds" << std::endl;
        return false;
    }
    const std::size_t seedCount = seeds.size();
    const fuzz::Mutator mutator(format, std::move(seeds));
    const fuzz::Outcome outcome = fuzz::drive(
        {format, mutator, call.seed, call.first, call.count, call.failures, {}, startQt},
        std::cout);
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
        std::chrono::steady_clock::now() - started);
    std::cout << format.name << ": " << outcome.read << " inputs of " << seedCount
              << " seeds, seed " << call.seed << ", " << outcome.failed.size() << " failed, "
              << seconds.count() << " s, " << outcome.peakBytes / (1 << 20) << " MB" << std::endl;
    return outcome.failed.empty();
}

void writeSeeds(const fuzz::Format& format, const std::filesystem::path& folder) {
    int number = 0;
    for (const fuzz::Bytes& seed : fuzz::readSeeds(format, FUZZ_SOURCES))
        fuzz::writeBytes(folder / ("seed-" + std::to_string(number++)), seed);
}

/// What the call asks for; false when an input failed.
bool serve(const fuzz::Format& format, const Call& call) {
    if (call.list) {
        std::cout << format.name << '\n';
    } else if (!call.written.empty()) {
        writeSeeds(format, call.written);
    } else if (!call.file.empty()) {
        startQt();
        format.readOne(fuzz::readBytes(call.file));
    } else {
        return readFormat(format, call);
    }
    return true;
}

} // namespace

#ifdef __SANITIZE_ADDRESS__
/// One allocation beyond this is a length that was believed.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "max_allocation_size_mb=1024:detect_leaks=1";
}
#endif

int main(int argc, char** argv) {
    Call call;
    if (const int status = parse(argc, argv, call); status >= 0)
        return status;
    if (call.list || call.names.empty())
        for (const fuzz::Format* format : fuzz::formats())
            call.names.emplace_back(format->name);
    bool wentWell = true;
    for (const std::string& name : call.names) {
        const fuzz::Format* const format = fuzz::findFormat(name);
        if (!format) {
            std::cerr << "no format of that name: " << name << '\n';
            return 2;
        }
        wentWell = serve(*format, call) && wentWell;
    }
    return wentWell ? 0 : 1;
}
