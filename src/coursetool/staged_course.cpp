#include "coursetool/staged_course.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/within.h"

namespace coursetool {

namespace fs = std::filesystem;

StagedCourse::StagedCourse(fs::path directory)
    : directory_(std::move(directory)), publication_(directory_) {}

StagedCourse::~StagedCourse() {
    if (lock_ && lock_->isHeld())
        publication_.clear();
    if (published_)
        return;
    // Directories that were made for nothing go again, unless something stands in them.
    std::error_code ignored;
    for (auto made = madeDirectories_.rbegin(); made != madeDirectories_.rend(); ++made)
        fs::remove(*made, ignored);
}

bool StagedCourse::open(Report& report) {
    std::error_code error;
    if (!makeDirectory(directory_, error)) {
        report.failure(directory_, files::kFolderNotCreated, error);
        return false;
    }
    lock_.emplace(directory_);
    if (!lock_->isHeld()) {
        report.failure({shown(directory_)}, "un autre build écrit dans ce dossier");
        return false;
    }
    if (publication_.isPending())
        publication_.finish();
    if (!publication_.prepare()) {
        report.failure(directory_, "le dossier ne peut pas être écrit", publication_.error());
        return false;
    }
    return true;
}

bool StagedCourse::makeDirectory(const fs::path& path, std::error_code& error) {
    if (path.empty() || fs::is_directory(path, error))
        return true;
    if (!makeDirectory(path.parent_path(), error))
        return false;
    error.clear();
    if (fs::create_directory(path, error))
        madeDirectories_.push_back(path);
    return !error;
}

/// The same for a directory of the course, which a link must not lead elsewhere.
bool StagedCourse::makeInside(const fs::path& relative, std::error_code& error) {
    if (files::isFreeOfLinks(directory_ / relative, directory_))
        return makeDirectory(directory_ / relative, error);
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return false;
}

fs::path StagedCourse::pathFor(const fs::path& relative) const {
    fs::path path = publication_.newFile(relative);
    std::error_code ignored; // whoever writes the file meets the failure
    fs::create_directories(path.parent_path(), ignored);
    return path;
}

bool StagedCourse::publish(Report& report) {
    std::error_code error;
    fs::path at = directory_;
    auto steps = plan(at, error);
    published_ = !error && publication_.begin(std::move(steps)) && publication_.finish();
    if (published_)
        return true;
    if (!error) {
        error = publication_.error();
        at = publication_.place();
    }
    report.failure(at, "le fichier ne peut pas être mis en place, le cours reste comme il était",
                   error);
    return false;
}

/// What goes where, with the directories for it made. Most of what can be in the way is met here,
/// before anything has moved.
std::vector<files::Publication::Replacement> StagedCourse::plan(fs::path& at,
                                                                std::error_code& error) {
    std::vector<files::Publication::Replacement> steps;
    for (auto it = folders_.begin(); !error && it != folders_.end(); ++it) {
        at = directory_ / *it;
        makeInside(*it, error);
    }
    for (auto it = files_.begin(); !error && it != files_.end(); ++it) {
        at = directory_ / *it;
        if (!makeInside(it->parent_path(), error))
            break;
        const fs::path old = standsAt(*it);
        std::error_code absent;
        if (!old.empty() && fs::is_directory(fs::symlink_status(directory_ / old, absent)))
            error = std::make_error_code(std::errc::is_a_directory);
        steps.push_back({*it, old});
    }
    return steps;
}

/// What the new file takes the place of, relative to the course; empty when there is nothing.
fs::path StagedCourse::standsAt(const fs::path& relative) {
    // A name that differs in letter case only counts too: it could be found instead of the new one.
    const fs::path directory = relative.parent_path();
    const auto [known, isNew] = present_.try_emplace(directory);
    if (isNew) {
        Report unreadable; // writing there fails with a word of its own
        for (const fs::directory_entry& entry : entriesOf(directory_ / directory, unreadable))
            known->second.add(entry.path().filename());
    }
    const auto name = known->second.find(relative.filename());
    return name ? directory / *name : fs::path();
}

} // namespace coursetool
