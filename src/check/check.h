#pragma once

#include "check/check_request.h"
#include "check/rule.h"
#include "coursetool/source_reader.h"
#include "page/text_metrics.h"

#include <vector>

namespace check {

/// Everything that the rules find in a course and that nobody silenced, by file, record and line.
/// `told` hears how far the work has come, and no more.
std::vector<Finding> findingsIn(const CheckRequest& request, const page::TextMetrics& metrics,
                                const coursetool::Report& told = {});

/// Finds, settles what may be settled when the request says so, and writes what is left; Faults
/// when one is among that. What could not be written is reported.
coursetool::ExitCode check(const CheckRequest& request, const page::TextMetrics& metrics,
                           coursetool::OutputBuffer& out, coursetool::Report& report);

/// Tells as warnings what makes pages of sources wrong, but for what `build` refuses itself.
void warnOfWrongPages(const std::filesystem::path& source, coursetool::SourceReader& reader,
                      const page::TextMetrics& metrics, coursetool::Report& report);

} // namespace check
