#pragma once

#include "coursetool/markdown_source.h"
#include "coursetool/report.h"
#include "coursetool/source_reader.h"

#include <filesystem>

namespace coursetool {

/// Compiles the course sources in `source` into the installation directory `output`: both
/// databases, the files and the disc directories. Every fault of the sources is reported; with one
/// or more, and when something cannot be written, `output` stays as it was and the result is false.
/// Time grows with the number of pages, memory by the places of their numbers (less than 1 KB
/// each). `compiler` is asked for when a source is in Markdown; without it such a source is a
/// fault.
bool build(const std::filesystem::path& source, const std::filesystem::path& output, Report& report,
           const CompilerSource& compiler = {});
/// The same of what `reader` reads.
bool build(const std::filesystem::path& source, const std::filesystem::path& output, Report& report,
           SourceReader& reader);

/// Whether `output` would be read as part of the sources, or is the sources themselves.
bool liesAmongSources(const std::filesystem::path& source, const std::filesystem::path& output);

} // namespace coursetool
