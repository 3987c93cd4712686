#pragma once

#include "coursetool/drawing_request.h"

#include <filesystem>

namespace coursetool {

/// What is to be printed: the sheets that the print button gives on a page of a course.
struct PrintRequest {
    std::filesystem::path course;
    int page = 0;
    std::filesystem::path output; ///< a PDF file
    Drives drives;
};

using PrintFunction = void (*)(int& argc, char** argv, const PrintRequest& request, Report& report);
inline constexpr char kPrintSymbol[] = "orvalentePrint";

} // namespace coursetool
