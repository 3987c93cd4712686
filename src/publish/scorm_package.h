#pragma once

#include "coursetool/report.h"
#include "publish/site_folder.h"

#include <QString>

#include <filesystem>

namespace publish {

/// Packs a site as SCORM 1.2 ("Content Aggregation Model", ADL 2001): a ZIP archive with a manifest
/// at its root that names one activity. The same site gives the same bytes. A failure is in the
/// report.
void packScorm(const SiteFolder& site, const QString& title, const std::filesystem::path& archive,
               coursetool::Report& report);

} // namespace publish
