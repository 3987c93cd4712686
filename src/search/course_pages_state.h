#pragma once

#include "jet/table.h"
#include "search/course_pages.h"

#include <optional>

namespace search {

struct CoursePages::State {
    jet::Table table;
    std::size_t fpc;
    std::size_t moteur;
    std::optional<std::size_t> titre;
    std::optional<std::size_t> numeropage;
};

} // namespace search
