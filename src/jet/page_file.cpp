#include "jet/page_file.h"

#include "files/cause.h"
#include "jet/database_file.h"

#include <limits>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <share.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

#include <cerrno>

namespace jet {

namespace {

// What the standard library lacks: keeping other writers out, and waiting for the disk.
#ifdef _WIN32
std::FILE* openExisting(const std::filesystem::path& path) {
    return _wfsopen(path.c_str(), L"r+b", _SH_DENYWR);
}
bool takeLock(std::FILE*) {
    return true; // opening took it
}
bool flushToDisk(std::FILE* file) {
    return _commit(_fileno(file)) == 0;
}
void setLength(std::FILE* file, std::uint64_t size) {
    _chsize_s(_fileno(file), static_cast<long long>(size));
}
#else
std::FILE* openExisting(const std::filesystem::path& path) {
    return std::fopen(path.c_str(), "r+be");
}
/// File systems without locks do without.
bool takeLock(std::FILE* file) {
    return flock(fileno(file), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}
/// What cannot be flushed, as a file system without that notion has it, is as safe as it gets.
bool flushToDisk(std::FILE* file) {
    return fsync(fileno(file)) == 0 || errno == EINVAL;
}
void setLength(std::FILE* file, std::uint64_t size) {
    // A file that stays longer has pages nobody points to, no more.
    [[maybe_unused]] const int ignored = ftruncate(fileno(file), static_cast<off_t>(size));
}
#endif

} // namespace

Result<std::unique_ptr<PageSink>> PageFile::open(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return fileFailure(path, "le fichier ne peut pas être ouvert",
                           error ? error : std::make_error_code(std::errc::not_supported));
    std::FILE* file = openExisting(path);
    if (!file)
        return fileFailure(path, "le fichier ne peut pas être modifié", files::lastError());
    // Unbuffered, so that a page goes to the system in one piece or not at all.
    std::setvbuf(file, nullptr, _IONBF, 0);
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::unique_ptr<PageSink> opened(new PageFile(file, path, size));
    if (error)
        return fileFailure(path, "le fichier ne peut pas être ouvert", error);
    if (!takeLock(file))
        return fileFailure(Failure::Kind::System, path,
                           "un autre programme est en train d’y écrire");
    return opened;
}

PageFile::PageFile(std::FILE* file, std::filesystem::path path, std::uint64_t size)
    : file_(file), path_(std::move(path)), size_(size) {}

PageFile::~PageFile() {
    std::fclose(file_);
}

Result<void> PageFile::write(std::uint32_t number, Bytes page) {
    const std::uint64_t at = std::uint64_t{number} * page.size();
    const bool isReachable = at <= std::numeric_limits<std::int32_t>::max() - page.size();
    if (!isReachable)
        return fileFailure(path_, "l’écriture a échoué",
                           std::make_error_code(std::errc::file_too_large));
    if (std::fseek(file_, static_cast<long>(at), SEEK_SET) != 0 ||
        std::fwrite(page.data(), 1, page.size(), file_) != page.size())
        return fileFailure(path_, "l’écriture a échoué", files::lastError());
    return {};
}

Result<void> PageFile::sync() {
    if (std::fflush(file_) != 0 || !flushToDisk(file_))
        return fileFailure(path_, "l’écriture a échoué", files::lastError());
    return {};
}

void PageFile::cutBack() {
    setLength(file_, size_);
}

} // namespace jet
