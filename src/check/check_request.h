#pragma once

#include "coursetool/drawing_request.h"
#include "coursetool/exit_code.h"
#include "coursetool/source_reader.h"

#include <filesystem>
#include <set>
#include <string>

namespace check {

enum class CheckFormat { Text, Json, Sarif };

/// What is to be checked, and how to tell it.
struct CheckRequest {
    std::filesystem::path course; ///< sources, or an installation directory
    CheckFormat format = CheckFormat::Text;
    bool fix = false;
    std::set<std::string> ignored; ///< codes
    /// Only to be explained: a code, or kAllRules; nothing is checked then.
    std::string explained;
    coursetool::Drives drives;
};

/// What names all rules where a code could stand.
inline constexpr char kAllRules[] = "toutes";

// Functions of the module that draws (coursetool/drawing_request.h).

/// Writes the findings to `out`. WrongCall for a code that no rule has, and for an installed course
/// that is to be mended.
using CheckFunction = coursetool::ExitCode (*)(int& argc, char** argv, const CheckRequest& request,
                                               coursetool::OutputBuffer& out,
                                               coursetool::Report& report);
inline constexpr char kCheckSymbol[] = "orvalenteCheck";

/// Warns of what makes pages of the sources wrong and does not keep them from being built.
using BuildWarningsFunction = void (*)(int& argc, char** argv, const std::filesystem::path& source,
                                       coursetool::SourceReader& reader,
                                       coursetool::Report& report);
inline constexpr char kBuildWarningsSymbol[] = "orvalenteBuildWarnings";

} // namespace check
