#pragma once

#include "coursetool/course_sources.h"
#include "files/file_stamp.h"
#include "preview/remembered_sources.h"
#include "preview/source_records.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace preview {

/// An installation directory of its own that follows the sources of a course. Nothing of the
/// sources is written.
class PreviewedCourse {
public:
    /// `installation` is an empty directory that nobody else writes to; `compiler` must outlive the
    /// course.
    PreviewedCourse(std::filesystem::path sources, std::filesystem::path installation,
                    const authoring::Compiler& compiler);

    /// What an update has renewed. With a fault in the sources the installation stays as it is: the
    /// course as it was last without one.
    enum class Renewed { Nothing, Pages, PagesAndFiles };
    Renewed update();

    /// A course of one page with these words (Markdown), for sources that have no course yet.
    void showInstead(std::string_view words);

    /// What the last update had to say.
    const std::vector<coursetool::Remark>& remarks() const { return remarks_; }

    /// What the sources gave in the last update, faults or not.
    const SourceRecords& records() const { return read_; }

    /// The place in the sources of a line (from 1) of the page with this number; nothing when no
    /// source has that page.
    std::optional<coursetool::Place> placeOf(std::int32_t page, int line) const;

    const std::filesystem::path& sources() const { return sources_; }
    const RememberedSources& memory() const { return memory_; }

private:
    /// A file that is copied: where it comes from and what it was then.
    struct Copied {
        std::filesystem::path from;
        std::optional<files::FileStamp> stamp;
        bool operator==(const Copied&) const = default;
    };
    using Copies = std::map<std::filesystem::path, Copied>; ///< by place in the installation

    Copies filesOf(const coursetool::CourseSources& sources) const;
    bool renewFiles(const coursetool::CourseSources& sources, coursetool::Report& report);
    bool renewDescriptions(const coursetool::PictureDescriptions& descriptions,
                           coursetool::Report& report);
    bool renewDatabases(coursetool::Report& report);

    const std::filesystem::path sources_;
    const std::filesystem::path installation_;
    const authoring::Compiler& compiler_;
    RememberedSources memory_;
    std::vector<coursetool::Remark> remarks_;
    SourceRecords read_;                     ///< of the last update
    std::optional<SourceRecords> installed_; ///< what the databases hold; nothing when nobody knows
    Copies copied_;
    std::string descriptions_; ///< what is written of them
};

} // namespace preview
