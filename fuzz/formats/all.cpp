#include "all.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

std::span<const Format* const> formats() {
    static const std::array kAll{
        &kDatabase,     &kDatabaseEdit, &kInstalledCourse, &kPicture, &kCourseSource,
        &kPageSource,   &kQuestion,     &kMarkdown,        &kFilm,    &kStatusFile,
        &kDescriptions, &kCalculation,  &kTypedWords,      &kOrder,
    };
    return kAll;
}

const Format* findFormat(std::string_view name) {
    const auto all = formats();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const Format* format) { return format->name == name; });
    return found == all.end() ? nullptr : *found;
}

void require(bool holds, const char* words) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", words);
    std::abort();
}

} // namespace fuzz
