// One record by position, warm, and the index of all pages: record_bench FILE

#include "jet/database_file.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double microsecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

double medianOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    auto database = jet::openDatabase(argv[1]);
    auto table = database->table(u"cours");
    const std::size_t count = table->recordCount();
    const std::size_t fpc = *table->columnIndex(u"fpc");

    std::vector<double> times;
    std::size_t position = 12345;
    for (int i = 0; i < 2000; ++i) {
        position = (position * 1103515245 + 12345) % count;
        const auto start = Clock::now();
        const auto value = table->value(position, fpc);
        times.push_back(microsecondsSince(start));
        if (!value || value->isNull())
            return 1;
    }

    std::vector<double> scans;
    const std::size_t columns[] = {*table->columnIndex(u"Numeropage"),
                                   *table->columnIndex(u"Index")};
    for (int i = 0; i < 9; ++i) {
        std::size_t seen = 0;
        const auto start = Clock::now();
        auto fresh = jet::openDatabase(argv[1])->table(u"cours");
        fresh->scan(columns, [&](std::size_t, std::span<const jet::Value>) { return ++seen > 0; });
        scans.push_back(microsecondsSince(start) / 1000);
        if (seen != count)
            return 1;
    }
    std::printf("%7zu rows: record %.1f us (goal: under 50), index %.2f ms\n", count,
                medianOf(times), medianOf(scans));
    return 0;
}
