#include "files/copy_file.h"

#include "files/input_file.h"
#include "files/whole_file.h"

#include <algorithm>
#include <vector>

namespace files {

namespace {

/// Bytes read at once.
constexpr std::uint64_t kPiece = 64 * 1024;

} // namespace

std::error_code copyFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    const auto source = InputFile::open(from, error);
    if (!source)
        return error;
    WholeFile copy(to);
    std::vector<std::uint8_t> piece;
    for (std::uint64_t at = 0; at < source->size(); at += piece.size()) {
        piece.resize(static_cast<std::size_t>(std::min(kPiece, source->size() - at)));
        if (!source->read(at, piece, error)) // it became shorter when there is no error
            return error ? error : std::make_error_code(std::errc::io_error);
        if (!copy.write(piece))
            return copy.error();
    }
    const std::filesystem::file_status status = std::filesystem::status(from, error);
    copy.setPermissions(status.permissions());
    copy.putInPlace();
    return copy.error();
}

} // namespace files
