#pragma once

#include "coursetool/build.h"
#include "preview/remembering_compiler.h"

#include <cstdint>
#include <filesystem>
#include <map>

namespace preview {

/// An installation directory of its own that follows the sources of a course. Nothing of the
/// sources is written.
class PreviewedCourse {
public:
    /// `installation` is an empty directory; `compiler` must outlive the course.
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

    /// The place in the sources of a line (from 1) of the page with this number; nothing when no
    /// source has that page.
    std::optional<coursetool::Place> placeOf(std::int32_t page, int line) const;

    const std::filesystem::path& sources() const { return sources_; }
    const RememberingCompiler& compiler() const { return compiler_; }

private:
    /// Size and time of every file that is copied, by its place in the installation.
    struct Stamp {
        std::uintmax_t size;
        std::filesystem::file_time_type changed;
        bool operator==(const Stamp&) const = default;
    };
    using Stamps = std::map<std::filesystem::path, Stamp>;

    Stamps stampFiles() const;
    void removeVanished(const Stamps& now);

    std::filesystem::path sources_;
    std::filesystem::path installation_;
    RememberingCompiler compiler_;
    std::vector<coursetool::Remark> remarks_;
    std::optional<Stamps> files_; ///< as copied last
};

} // namespace preview
