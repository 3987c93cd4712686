#include "seeds.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <utility>

namespace fuzz {

namespace fs = std::filesystem;

namespace {

void addFiles(const fs::path& folder, std::string_view ending, std::vector<fs::path>& files) {
    const auto first = static_cast<std::ptrdiff_t>(files.size());
    std::error_code none;
    for (const auto& entry : fs::recursive_directory_iterator(folder, none))
        if (entry.is_regular_file() && entry.path().filename().string().ends_with(ending))
            files.push_back(entry.path());
    std::sort(files.begin() + first, files.end());
}

fs::path scratchFolderOf(int process) {
    static const fs::path parent = fs::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
    return parent / ("orvalente-fuzz-" + std::to_string(process));
}

} // namespace

Bytes readBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    Bytes bytes(text.size());
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](char c) { return static_cast<std::byte>(c); });
    return bytes;
}

void writeBytes(const fs::path& file, Input bytes) {
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

std::vector<Bytes> readSeeds(const Format& format, const fs::path& sources,
                             const std::vector<fs::path>& grown) {
    std::vector<fs::path> files;
    for (const SeedPlace& place : format.seeds)
        addFiles(sources / place.folder, place.ending, files);
    std::set<std::string_view> endings;
    for (const SeedPlace& place : format.seeds)
        endings.insert(place.ending);
    for (const fs::path& folder : grown)
        for (const std::string_view ending : endings)
            addFiles(folder, ending, files);
    std::vector<Bytes> seeds;
    for (const fs::path& file : files)
        seeds.push_back(readBytes(file));
    if (format.makeSeeds)
        for (Bytes& made : format.makeSeeds())
            seeds.push_back(std::move(made));
    return seeds;
}

const fs::path& scratchFolder() {
    static const struct Scratch {
        Scratch() { fs::create_directories(path); }
        ~Scratch() {
            std::error_code none;
            fs::remove_all(path, none);
        }
        fs::path path = scratchFolderOf(getpid());
    } scratch;
    return scratch.path;
}

void removeScratchFolderOf(int process) {
    std::error_code none;
    fs::remove_all(scratchFolderOf(process), none);
}

} // namespace fuzz
