#include "files/whole_file.h"

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace files {

namespace fs = std::filesystem;

namespace {

/// Bytes written at once.
constexpr std::size_t kPiece = 64 * 1024;

/// Names that a single program tries: others of it write beside.
constexpr int kNamesTried = 100;

int processNumber() {
#ifdef _WIN32
    return _getpid();
#else
    return getpid();
#endif
}

/// Names that stand for what the program already has open, whatever that is: to put another file
/// in their place would leave the reader with the old one.
bool isSystemName(const fs::path& target) {
    std::error_code error;
    const fs::path directory = fs::canonical(fs::absolute(target, error).parent_path(), error);
    return directory == "/dev" || directory.native().starts_with(fs::path("/proc/").native());
}

/// The file that links lead to.
fs::path withoutLinks(const fs::path& target, std::error_code& error) {
    const bool isLink = fs::is_symlink(fs::symlink_status(target, error));
    error.clear();
    return isLink ? fs::canonical(target, error) : target;
}

} // namespace

WholeFile::WholeFile(const fs::path& target) : target_(target) {
    if (isSystemName(target)) { // links there need not lead to names
        openDirectly();
        return;
    }
    target_ = withoutLinks(target, error_);
    if (error_)
        return;
    std::error_code absent;
    const fs::file_status status = fs::status(target_, absent);
    if (fs::is_directory(status))
        error_ = std::make_error_code(std::errc::is_a_directory);
    else if (fs::exists(status) && !fs::is_regular_file(status))
        openDirectly();
    else
        openBeside();
}

void WholeFile::openDirectly() {
    file_ = Descriptor(target_, Descriptor::Mode::Existing, error_);
}

void WholeFile::openBeside() {
    std::error_code error;
    for (int i = 0; i < kNamesTried && !file_; ++i) {
        beside_ = target_.parent_path() /
                  (".partiel-" + std::to_string(processNumber()) + '-' + std::to_string(i));
        error.clear();
        file_ = Descriptor(beside_, Descriptor::Mode::Create, error);
        if (error && error != std::errc::file_exists)
            break;
    }
    error_ = error;
    if (!file_)
        return beside_.clear();
    // Whoever could read the old one can read the new one, and nobody else.
    std::error_code absent;
    if (const fs::file_status old = fs::status(target_, absent); fs::exists(old))
        fs::permissions(beside_, old.permissions(), absent);
}

WholeFile::~WholeFile() {
    std::error_code ignored;
    if (file_)
        file_.close(ignored);
    if (!beside_.empty())
        fs::remove(beside_, ignored);
}

bool WholeFile::write(std::span<const std::uint8_t> bytes) {
    waiting_.insert(waiting_.end(), bytes.begin(), bytes.end());
    return waiting_.size() < kPiece ? !error_ : flush();
}

bool WholeFile::write(std::string_view bytes) {
    return write({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

bool WholeFile::flush() {
    if (!error_ && file_)
        file_.write(waiting_, error_);
    waiting_.clear();
    return !error_;
}

bool WholeFile::writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
    if (!error_ && file_)
        file_.writeAt(offset, bytes, error_);
    return !error_;
}

bool WholeFile::putInPlace(Care care) {
    const bool waits = care == Care::Lasting && !beside_.empty();
    if (!flush() || (waits && !file_.sync(error_)) || !file_.close(error_))
        return false;
    if (beside_.empty())
        return true;
    fs::rename(beside_, target_, error_);
    if (error_)
        return false;
    beside_.clear();
    if (waits)
        syncDirectory(target_.parent_path());
    return true;
}

} // namespace files
