#pragma once

#include "authoring/compiled.h"
#include "coursetool/field_value.h"
#include "coursetool/front_matter.h"
#include "coursetool/report.h"
#include "coursetool/source_parts.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace coursetool {

inline constexpr char kMarkdownEnding[] = ".md";

/// Gives the compiler of Markdown, which is a module of its own: it measures text, and brings Qt
/// along. Asked for when a source needs it; null, after a fault, when it is not to be had.
using CompilerSource = std::function<const authoring::Compiler*()>;

// The module's function; its reason is that of the drawing functions (drawing_request.h). The
// compiler is the caller's.
using MarkdownFunction = authoring::Compiler* (*)(int& argc, char** argv);
inline constexpr char kMarkdownSymbol[] = "orvalenteMarkdown";

/// A page or question written in Markdown, compiled: its fields without the Memo ones, and the
/// texts of those, absent where they are NULL.
struct CompiledSource {
    Fields fields;
    std::optional<authoring::CompiledText> text;   ///< fpc or question
    std::optional<authoring::CompiledText> siFaux; ///< of a question
    std::vector<authoring::Description> descriptions;
};

/// Names every fault with its place in `file`, which `parts` come from.
CompiledSource compileMarkdownPage(const SourceParts& parts, const std::string& file,
                                   const authoring::Compiler& compiler, Report& report);
/// The same for a question. `type` may be left out, `solution` must be: the text tells both.
CompiledSource compileMarkdownQuestion(const SourceParts& parts, const std::string& file,
                                       const authoring::Compiler& compiler, Report& report);

} // namespace coursetool
