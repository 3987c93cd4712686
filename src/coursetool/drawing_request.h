#pragma once

#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <filesystem>
#include <map>
#include <string>

namespace coursetool {

/// What is to be traced: a page of a course, or a bare page source when `source` is not empty.
struct TraceRequest {
    std::filesystem::path course;
    int page = 0;
    std::filesystem::path source;
    std::map<char, std::filesystem::path> drives; ///< directories by letter, in upper case
};

// What draws is a module of its own, which brings Qt along; it is loaded when it is needed, so that
// the rest of the tool starts without waiting for it.

/// The module's one function. It may be called once.
using TraceFunction = void (*)(int& argc, char** argv, const TraceRequest& request,
                               OutputBuffer& out, Report& report);
inline constexpr char kTraceSymbol[] = "orvalenteTrace";

} // namespace coursetool
