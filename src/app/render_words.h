#pragma once

#include "coursetool/drawing_request.h"

#include <string>
#include <variant>

namespace app {

/// The values of `render`'s options as they were typed; empty where an option was left out.
struct RenderWords {
    std::string course;
    std::string source;
    std::string output;
    std::string page;
    std::string question;
    bool all = false;
    std::string format;
    std::string scale;
};

/// What the words ask for, or a sentence that says what is wrong with them. Directories are not
/// looked at.
std::variant<coursetool::RenderRequest, std::string> readRenderWords(const RenderWords& words);

} // namespace app
