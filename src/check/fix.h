#pragma once

#include "check/finding.h"
#include "coursetool/report.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace check {

/// Carries out the safe edits of findings about sources in `root`; gives how many lines it changed.
/// A file is replaced as a whole or stays as it is. Nothing is written through a link, and no line
/// that is not as it was when it was read. Why a file cannot be written is reported.
std::size_t applySafe(const std::vector<Finding>& findings, const std::filesystem::path& root,
                      coursetool::Report& report);

} // namespace check
