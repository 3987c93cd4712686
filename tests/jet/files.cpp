#include "jet/files.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>

FileBytes readBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return FileBytes(std::istreambuf_iterator<char>(file), {});
}

void writeBytes(const std::filesystem::path& path, const FileBytes& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file) << path;
}

std::filesystem::path samplePath(const std::string& name) {
    return std::filesystem::path(JET_SAMPLES) / (name + ".mdb");
}

ScratchFolder::ScratchFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() / ("jet-tests-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

ProgramRun run(const std::string& command) {
    ProgramRun result;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return result;
    std::array<char, 4096> part;
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
        result.output.append(part.data(), count);
    result.status = pclose(pipe);
    return result;
}
