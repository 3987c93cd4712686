#include "files/whole_file.h"

namespace files {

namespace fs = std::filesystem;

namespace {

/// Bytes written at once.
constexpr std::size_t kPiece = 64 * 1024;

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
        direct_ = Descriptor(target_, Descriptor::Mode::Existing, error_);
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
        direct_ = Descriptor(target_, Descriptor::Mode::Existing, error_);
    else
        openBeside();
}

void WholeFile::openBeside() {
    beside_.emplace(target_.parent_path(), error_);
    // Whoever could read the old one can read the new one, and nobody else.
    std::error_code absent;
    if (const fs::file_status old = fs::status(target_, absent); fs::exists(old))
        setPermissions(old.permissions());
}

WholeFile::~WholeFile() = default;

void WholeFile::setPermissions(fs::perms permissions) {
    std::error_code ignored;
    if (beside_ && !error_)
        fs::permissions(beside_->path(), permissions, ignored);
}

bool WholeFile::write(std::span<const std::uint8_t> bytes) {
    waiting_.insert(waiting_.end(), bytes.begin(), bytes.end());
    return waiting_.size() < kPiece ? !error_ : flush();
}

bool WholeFile::write(std::string_view bytes) {
    return write({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

bool WholeFile::flush() {
    if (!error_)
        file().write(waiting_, error_);
    waiting_.clear();
    return !error_;
}

bool WholeFile::writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes) {
    if (!error_)
        file().writeAt(offset, bytes, error_);
    return !error_;
}

bool WholeFile::putInPlace(Care care) {
    if (!flush())
        return false;
    if (!beside_)
        return direct_.close(error_);
    if ((care == Care::Lasting && !file().sync(error_)) || !beside_->becomes(target_, error_))
        return false;
    if (care == Care::Lasting)
        syncDirectory(target_.parent_path());
    return true;
}

} // namespace files
