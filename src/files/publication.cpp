#include "files/publication.h"

#include "files/descriptor.h"
#include "files/directory_lock.h"
#include "files/input_file.h"
#include "files/whole_file.h"
#include "files/within.h"

#include <set>
#include <string_view>

namespace files {

namespace fs = std::filesystem;

namespace {

constexpr char kNewFiles[] = "nouveau";
constexpr char kOldFiles[] = "ancien";
constexpr char kJournal[] = "journal";

/// First line of a journal; names follow, each with a NUL behind it, as a name may have line ends.
constexpr std::string_view kJournalStart = "orvalente-cours 1\n";

/// A course of 100,000 files has a tenth of this.
constexpr std::uint64_t kMaxJournalBytes = 256 * 1024 * 1024;

std::string utf8(const fs::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

/// A second name for what is there, where the file system can, a copy elsewhere.
bool keepCopy(const fs::path& file, const fs::path& copy, std::error_code& error) {
    fs::create_hard_link(file, copy, error);
    if (!error)
        return true;
    std::error_code absent;
    const fs::file_status status = fs::symlink_status(file, absent);
    error.clear();
    if (fs::is_symlink(status))
        fs::copy_symlink(file, copy, error);
    else if (fs::is_regular_file(status))
        fs::copy_file(file, copy, error);
    else
        error = std::make_error_code(std::errc::not_supported);
    return !error;
}

/// Links count as what they are.
bool stands(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

} // namespace

fs::path Publication::journal() const {
    return folder() / kJournal;
}

fs::path Publication::newFile(const fs::path& relative) const {
    return folder() / kNewFiles / relative;
}

fs::path Publication::keptFile(std::size_t index) const {
    return folder() / kOldFiles / std::to_string(index);
}

bool Publication::fail(const fs::path& at) {
    place_ = at;
    return false;
}

bool Publication::prepare() {
    clear();
    if (isPending()) { // finish() said why
        if (!error_)
            error_ = std::make_error_code(std::errc::device_or_resource_busy);
        return fail(journal());
    }
    error_.clear();
    fs::create_directory(folder(), error_); // fails where clear() could not remove it
    for (const char* part : {kNewFiles, kOldFiles})
        if (!error_)
            fs::create_directory(folder() / part, error_);
    return !error_ || fail(directory_);
}

void Publication::clear() {
    std::error_code ignored;
    if (!isPending())
        fs::remove_all(folder(), ignored);
}

bool Publication::isPending() const {
    return isFileWithin(journal(), directory_) && isFreeOfLinks(journal(), directory_);
}

bool Publication::begin(std::vector<Replacement> replacements) {
    steps_ = std::move(replacements);
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        // Once there is a journal, a new file that is not there is one that has been moved.
        if (!stands(newFile(steps_[i].target)))
            error_ = std::make_error_code(std::errc::no_such_file_or_directory);
        if (error_ || !keepOld(i))
            return fail(directory_ / steps_[i].target);
    }
    if (!syncFileSystem(folder(), error_))
        return fail(folder());
    WholeFile file(journal());
    file.write(journalText());
    file.putInPlace(WholeFile::Care::Lasting);
    error_ = file.error();
    return !error_ || fail(journal());
}

bool Publication::keepOld(std::size_t index) {
    const fs::path& old = steps_[index].old;
    return old.empty() || keepCopy(directory_ / old, keptFile(index), error_);
}

std::string Publication::journalText() const {
    std::string text(kJournalStart);
    for (const Replacement& step : steps_)
        text.append(utf8(step.target)).append(1, '\0').append(utf8(step.old)).append(1, '\0');
    return text;
}

/// False when it is none of ours, or names what no build would.
bool Publication::readJournal() {
    const auto file = InputFile::open(journal(), error_);
    if (!file)
        return false;
    std::string bytes(std::min(file->size(), kMaxJournalBytes), '\0');
    const std::span content(reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size());
    std::string_view rest(bytes);
    if (!file->read(0, content, error_) || !rest.starts_with(kJournalStart))
        return false;
    rest.remove_prefix(kJournalStart.size());
    const auto next = [&rest] {
        const std::string_view name = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
        return fs::path(std::u8string(name.begin(), name.end()));
    };
    steps_.clear();
    while (!rest.empty()) {
        Replacement step{next(), next()};
        if (!isHarmless(step.target) || !(step.old.empty() || isHarmless(step.old)))
            return false;
        steps_.push_back(std::move(step));
    }
    return true;
}

bool Publication::isHarmless(const fs::path& relative) const {
    return !relative.empty() && relative.is_relative() && *relative.begin() != kFolder &&
           isFreeOfLinks((directory_ / relative).parent_path(), directory_) &&
           isFreeOfLinks(newFile(relative).parent_path(), directory_);
}

bool Publication::finish() {
    if (!readJournal()) {
        if (!error_) { // none of ours
            std::error_code ignored;
            fs::remove(journal(), ignored);
            error_ = std::make_error_code(std::errc::not_supported);
        }
        return fail(journal());
    }
    std::set<fs::path> changed;
    bool moved = true;
    for (auto step = steps_.begin(); moved && step != steps_.end(); ++step) {
        moved = moveIn(*step) || fail(directory_ / step->target);
        changed.insert((directory_ / step->target).parent_path());
    }
    if (!moved && !putBack())
        return false;
    for (const fs::path& directory : changed)
        syncDirectory(directory);
    std::error_code error;
    fs::remove(journal(), error);
    syncDirectory(folder());
    return moved;
}

/// Both halves may have been done before.
bool Publication::moveIn(const Replacement& step) {
    const fs::path target = directory_ / step.target;
    if (stands(newFile(step.target)))
        fs::rename(newFile(step.target), target, error_);
    if (error_ || step.old.empty() || step.old == step.target || !stands(directory_ / step.old))
        return !error_;
    // Where letter case does not tell files apart, the old name now is the new file.
    std::error_code gone;
    if (!fs::equivalent(directory_ / step.old, target, gone))
        fs::remove(directory_ / step.old, error_);
    return !error_;
}

/// New files go back to where they can be moved from once more, should this be cut short as well.
bool Publication::putBack() {
    bool all = true;
    for (std::size_t i = steps_.size(); i-- > 0;) {
        const Replacement& step = steps_[i];
        std::error_code error;
        const bool wasMoved = !stands(newFile(step.target)) && stands(directory_ / step.target);
        if (wasMoved)
            fs::rename(directory_ / step.target, newFile(step.target), error);
        const bool lacksOld = !step.old.empty() && (wasMoved || !stands(directory_ / step.old)) &&
                              stands(keptFile(i));
        if (!error && lacksOld)
            fs::rename(keptFile(i), directory_ / step.old, error);
        all = all && !error;
    }
    return all;
}

void finishPublication(const fs::path& directory) {
    Publication left(directory);
    if (!left.isPending())
        return;
    const DirectoryLock lock(directory);
    if (!lock.isHeld())
        return;
    left.finish();
    left.clear();
}

} // namespace files
