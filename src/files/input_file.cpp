#include "files/input_file.h"

namespace files {

std::optional<InputFile> InputFile::open(const std::filesystem::path& path,
                                         std::error_code& error) {
    Descriptor file(path, Descriptor::Mode::Read, error);
    if (!file)
        return std::nullopt;
    if (!file.isRegularFile()) {
        error = std::make_error_code(std::errc::not_supported);
        return std::nullopt;
    }
    return InputFile(std::move(file));
}

} // namespace files
