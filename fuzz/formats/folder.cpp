#include "folder.h"

#include "coursetool/report.h"
#include "seeds.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace fuzz {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kHeading = "=== ";
constexpr std::string_view kLink = " -> ";
constexpr std::string_view kOutside = "!";
constexpr char kKept[] = "nobody else's\n";
/// A course with more files says nothing new.
constexpr int kMostFiles = 24;
/// What file systems take as a name.
constexpr std::size_t kLongestName = 120;

/// A name that stays below the folder it is looked for in; empty when nothing is left of it.
fs::path plainName(std::string_view name) {
    fs::path plain;
    std::istringstream parts{std::string(name)};
    for (std::string part; std::getline(parts, part, '/');) {
        part = part.substr(0, std::min(part.find('\0'), kLongestName));
        if (!part.empty() && part != "." && part != "..")
            plain /= part;
    }
    return plain;
}

bool isPlainLine(std::string_view line) {
    return std::none_of(line.begin(), line.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

} // namespace

CourseFolder::CourseFolder() : folder_(scratchFolder()) {
    for (const auto& entry : fs::directory_iterator(folder_))
        fs::remove_all(entry.path());
    fs::create_directories(root());
    writeBytes(outside(), std::as_bytes(std::span(kKept)));
}

fs::path CourseFolder::root() const {
    return folder_ / "cours";
}

fs::path CourseFolder::output() const {
    return folder_ / "resultat";
}

fs::path CourseFolder::outside() const {
    return folder_ / "ailleurs";
}

void CourseFolder::writeFile(const std::string& name, Input content) const {
    const fs::path plain = plainName(name);
    // A file whose folder is a file, or a link, is left out: the course has one thing of a name.
    std::error_code none;
    fs::create_directories((root() / plain).parent_path(), none);
    if (!none && !plain.empty() && !fs::exists(fs::symlink_status(root() / plain)))
        writeBytes(root() / plain, content);
}

void CourseFolder::writePart(std::string_view heading, std::string_view content) const {
    const std::size_t arrow = heading.find(kLink);
    if (arrow == heading.npos)
        return writeFile(std::string(heading), std::as_bytes(std::span(content)));
    const std::string_view target = heading.substr(arrow + kLink.size());
    const fs::path link = root() / plainName(heading.substr(0, arrow));
    std::error_code none;
    fs::create_directories(link.parent_path(), none);
    fs::create_symlink(target == kOutside ? outside() : root() / plainName(target), link, none);
}

void CourseFolder::write(std::string_view files) const {
    int written = 0;
    for (std::size_t at = files.find(kHeading); at != files.npos && written < kMostFiles;
         ++written) {
        const std::size_t end = std::min(files.find('\n', at), files.size());
        const std::size_t next = files.find("\n===", end);
        const std::size_t from = std::min(end + 1, files.size());
        const std::size_t to = next == files.npos ? files.size() : next + 1;
        writePart(files.substr(at + kHeading.size(), end - at - kHeading.size()),
                  files.substr(from, std::max(from, to) - from));
        at = files.find(kHeading, end);
    }
}

void CourseFolder::requireWithin(const coursetool::Report& report) const {
    const Bytes kept = readBytes(outside());
    require(std::ranges::equal(kept, std::as_bytes(std::span(kKept))),
            "a file outside the course stays as it is");
    for (const auto& entry : fs::directory_iterator(folder_))
        require(entry.path() == root() || entry.path() == output() || entry.path() == outside(),
                "nothing is made beside the course and what becomes of it");
    for (const std::string& line : report.lines())
        require(isPlainLine(line), "a line of a report is one line");
}

} // namespace fuzz
