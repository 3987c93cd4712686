#include "jet/page_file.h"

#include "files/cause.h"
#include "jet/database_file.h"

#include <limits>
#include <system_error>
#include <utility>

namespace jet {

using files::Descriptor;

Result<std::unique_ptr<PageSink>> PageFile::open(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return fileFailure(path, "le fichier ne peut pas être ouvert",
                           error ? error : std::make_error_code(std::errc::not_supported));
    Descriptor file(path, Descriptor::Mode::Change, error);
    if (!file)
        return fileFailure(path, "le fichier ne peut pas être modifié", error);
    if (file.takeLock() == Descriptor::Lock::Held) // file systems without locks do without
        return fileFailure(Failure::Kind::System, path,
                           "un autre programme est en train d’y écrire");
    return std::unique_ptr<PageSink>(new PageFile(std::move(file), path));
}

PageFile::PageFile(Descriptor file, std::filesystem::path path)
    : file_(std::move(file)), path_(std::move(path)), size_(file_.size()) {}

Result<void> PageFile::write(std::uint32_t number, Bytes page) {
    const std::uint64_t at = std::uint64_t{number} * page.size();
    const bool isReachable = at <= std::numeric_limits<std::int32_t>::max() - page.size();
    if (!isReachable)
        return fileFailure(path_, "l’écriture a échoué",
                           std::make_error_code(std::errc::file_too_large));
    // In one piece, so that it gets to the system as a whole or not at all.
    std::error_code error;
    if (!file_.writeAt(at, {page.data(), page.size()}, error))
        return fileFailure(path_, "l’écriture a échoué", error);
    return {};
}

Result<void> PageFile::sync() {
    std::error_code error;
    if (!file_.sync(error))
        return fileFailure(path_, "l’écriture a échoué", error);
    return {};
}

void PageFile::cutBack() {
    std::error_code ignored; // a file that stays longer has pages nobody points to, no more
    file_.setLength(size_, ignored);
}

} // namespace jet
