#pragma once

#include "markup/page_bench.h"

namespace test_support {

/// Draws a source three ways: as a course page, as a question and on paper; gives how many
/// operations that took. `source` has CR LF line ends.
inline std::size_t drawAnyWay(const QString& source, PageBench& bench) {
    bench.pictures.anyName = true;
    std::size_t operations = 0;
    for (const auto as :
         {markup::DrawnAs::CoursePage, markup::DrawnAs::Question, markup::DrawnAs::Paper}) {
        markup::drawPage({source, as}, {bench.state, bench.pictures, bench.metrics, &bench},
                         bench.page);
        operations += bench.page.recording.size();
    }
    return operations;
}

} // namespace test_support
