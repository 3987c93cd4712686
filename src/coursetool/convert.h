#pragma once

#include "coursetool/markdown_source.h"
#include "coursetool/output_buffer.h"

namespace coursetool {

/// Writes what a page or a question in Markdown compiles to, as a `*.page` or `*.question` source.
/// A question is a file whose fields give a REFERENCE.
void convert(const std::filesystem::path& file, const authoring::Compiler& compiler,
             OutputBuffer& out, Report& report);

} // namespace coursetool
