#pragma once

#include "coursetool/markdown_source.h"
#include "coursetool/output_buffer.h"
#include "coursetool/render_formats.h"
#include "coursetool/report.h"

#include <filesystem>
#include <map>
#include <optional>

namespace coursetool {

/// Directories that stand for drives, by their letters in upper case.
using Drives = std::map<char, std::filesystem::path>;

/// What is to be traced: a page or a question of a course, or a bare page source when `source` is
/// not empty.
struct TraceRequest {
    std::filesystem::path course;
    std::optional<int> page;
    std::filesystem::path source;
    Drives drives;
    std::optional<int> question = {};
    CompilerSource compiler = {}; ///< for a source in Markdown
};

/// Bounds of RenderRequest::scale: below, no letter has a pixel left; above, a page as wide as the
/// window would be wider than what most programs open.
inline constexpr double kMinScale = 0.1;
inline constexpr double kMaxScale = 16;

/// What is to be drawn into files: a page or a question of a course, or all of both when neither is
/// named; or a bare page source when `source` is not empty.
struct RenderRequest {
    std::filesystem::path course;
    std::filesystem::path source;
    std::optional<int> page;
    std::optional<int> question;
    std::filesystem::path output; ///< a directory for all pages, unless they go into one PDF
    RenderFormat format = RenderFormat::Png;
    double scale = 1; ///< pixels of the picture to one of the screen
    Drives drives;
    CompilerSource compiler = {}; ///< for a source in Markdown

    bool all() const { return !page && !question && source.empty(); }
};

/// What is to be printed: the sheets that the print button gives on a page of a course.
struct PrintRequest {
    std::filesystem::path course;
    int page = 0;
    std::filesystem::path output; ///< a PDF file
    Drives drives;
};

// What draws is a module of its own, which brings Qt along; it is loaded when it is needed, so that
// the rest of the tool starts without waiting for it. One of its functions may be called, once.

using TraceFunction = void (*)(int& argc, char** argv, const TraceRequest& request,
                               OutputBuffer& out, Report& report);
inline constexpr char kTraceSymbol[] = "orvalenteTrace";

using RenderFunction = void (*)(int& argc, char** argv, const RenderRequest& request,
                                Report& report);
inline constexpr char kRenderSymbol[] = "orvalenteRender";

using PrintFunction = void (*)(int& argc, char** argv, const PrintRequest& request, Report& report);
inline constexpr char kPrintSymbol[] = "orvalentePrint";

} // namespace coursetool
