#pragma once

#include "markup/page_bench.h"

namespace test_support {

/// Draws a source three ways: as a course page, as a question and on paper; gives how many
/// operations that took. `source` has CR LF line ends.
inline std::size_t drawAnyWay(const QString& source, PageBench& bench) {
    bench.pictures.anyName = true;
    std::size_t operations = 0;
    for (const auto& [question, paper] :
         {std::pair(false, false), std::pair(true, false), std::pair(false, true)}) {
        bench.isQuestion = question;
        bench.state.enImpression = paper;
        bench.state.surfaceDessin = paper ? &bench.printer : &bench.texte;
        bench.state.hauteurPage = 0;
        bench.recording.clear();
        bench.holder.setText(source);
        bench.renderer.affichepage();
        operations += bench.recording.size();
    }
    return operations;
}

} // namespace test_support
