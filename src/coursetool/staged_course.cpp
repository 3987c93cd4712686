#include "coursetool/staged_course.h"

#include "coursetool/paths.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

constexpr char kNewFiles[] = "nouveau";
constexpr char kOldFiles[] = "ancien";

/// A second name for the file where the file system can, a copy elsewhere.
bool keepCopy(const fs::path& file, const fs::path& backup, std::error_code& error) {
    fs::create_hard_link(file, backup, error);
    return !error || fs::copy_file(file, backup, error);
}

} // namespace

StagedCourse::StagedCourse(fs::path directory) : directory_(std::move(directory)) {}

StagedCourse::~StagedCourse() {
    std::error_code ignored;
    fs::remove_all(directory_ / kStagingFolder, ignored);
    if (published_)
        return;
    // Directories that were made for nothing go again, unless something stands in them.
    for (auto made = madeDirectories_.rbegin(); made != madeDirectories_.rend(); ++made)
        fs::remove(*made, ignored);
}

bool StagedCourse::open(Report& report) {
    std::error_code error;
    const fs::path staging = directory_ / kStagingFolder;
    if (makeDirectory(directory_, error)) {
        fs::remove_all(staging, error);
        fs::create_directories(staging / kNewFiles, error);
    }
    if (error)
        report.fault({shown(directory_)},
                     "le dossier ne peut pas être créé ou écrit : " + error.message());
    return !error;
}

bool StagedCourse::makeDirectory(const fs::path& path, std::error_code& error) {
    if (path.empty() || fs::is_directory(path, error))
        return true;
    if (!makeDirectory(path.parent_path(), error))
        return false;
    if (fs::create_directory(path, error))
        madeDirectories_.push_back(path);
    return !error;
}

fs::path StagedCourse::pathFor(const fs::path& relative) const {
    const fs::path path = directory_ / kStagingFolder / kNewFiles / relative;
    std::error_code ignored; // whoever writes the file meets the failure
    fs::create_directories(path.parent_path(), ignored);
    return path;
}

bool StagedCourse::publish(Report& report) {
    std::error_code error;
    fs::path at = directory_;
    const auto step = [&](const fs::path& relative, bool done) {
        at = directory_ / relative;
        return done;
    };
    fs::create_directory(directory_ / kStagingFolder / kOldFiles, error);
    published_ = !error;
    for (auto it = folders_.begin(); published_ && it != folders_.end(); ++it)
        published_ = step(*it, makeDirectory(directory_ / *it, error));
    for (auto it = files_.begin(); published_ && it != files_.end(); ++it)
        published_ = step(*it, replace(*it, error));
    if (!published_) {
        rollBack();
        report.fault({shown(at)}, "le fichier ne peut pas être mis en place, le cours reste comme "
                                  "il était : " +
                                      error.message());
    }
    return published_;
}

bool StagedCourse::replace(const fs::path& relative, std::error_code& error) {
    Replacement step;
    step.target = directory_ / relative;
    if (!makeDirectory(step.target.parent_path(), error))
        return false;
    step.old = standsAt(step.target);
    if (!step.old.empty()) {
        if (fs::is_directory(step.old, error)) {
            error = std::make_error_code(std::errc::is_a_directory);
            return false;
        }
        step.backup = directory_ / kStagingFolder / kOldFiles / std::to_string(done_.size());
        if (!keepCopy(step.old, step.backup, error))
            return false;
    }
    done_.push_back(step);
    fs::rename(pathFor(relative), step.target, error);
    // Where letter case does not tell files apart, the old name now is the new file.
    std::error_code gone;
    if (!error && !step.old.empty() && !fs::equivalent(step.old, step.target, gone))
        fs::remove(step.old, error);
    return !error;
}

fs::path StagedCourse::standsAt(const fs::path& target) {
    // A name that differs in letter case only counts too: it could be found instead of the new one.
    const fs::path directory = target.parent_path();
    const auto [known, isNew] = present_.try_emplace(directory);
    if (isNew) {
        Report unreadable; // writing there fails with a word of its own
        for (const fs::directory_entry& entry : entriesOf(directory, unreadable))
            known->second.add(entry.path().filename());
    }
    const auto name = known->second.find(target.filename());
    return name ? directory / *name : fs::path();
}

void StagedCourse::rollBack() {
    std::error_code ignored;
    for (auto step = done_.rbegin(); step != done_.rend(); ++step) {
        if (step->backup.empty() || step->old != step->target)
            fs::remove(step->target, ignored);
        if (!step->backup.empty())
            fs::rename(step->backup, step->old, ignored);
    }
    done_.clear();
}

} // namespace coursetool
