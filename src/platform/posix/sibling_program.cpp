#include "platform/sibling_program.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace platform {

std::string becomeSibling(const std::string& name, const std::vector<std::string>& arguments) {
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        return error.message();
    const std::string program = self.parent_path() / name;
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    return std::strerror(errno);
}

} // namespace platform
