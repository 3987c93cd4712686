#pragma once

#include "coursetool/drawing_request.h"
#include "coursetool/report.h"

#include <filesystem>

namespace publish {

struct PublishRequest {
    std::filesystem::path course; ///< an installation directory
    std::filesystem::path output; ///< a directory, or a file with `scorm`
    bool scorm = false;           ///< packed as SCORM 1.2
    coursetool::Drives drives;
};

/// In a module of its own, which brings along what makes fonts for browsers.
using PublishFunction = void (*)(int& argc, char** argv, const PublishRequest& request,
                                 coursetool::Report& report);
inline constexpr char kPublishSymbol[] = "orvalentePublish";

} // namespace publish
