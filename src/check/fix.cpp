#include "check/fix.h"

#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "files/within.h"

#include <map>
#include <string_view>

namespace check {

namespace {

/// A file as its lines, each with its end.
std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t length = end == text.npos ? text.size() : end + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

/// Where the line's end begins.
std::size_t contentLength(std::string_view line) {
    std::size_t length = line.size();
    if (length > 0 && line[length - 1] == '\n')
        --length;
    if (length > 0 && line[length - 1] == '\r')
        --length;
    return length;
}

bool apply(const Edit& edit, std::vector<std::string>& lines) {
    const auto index = static_cast<std::size_t>(edit.line - 1);
    if (edit.line < 1 || index >= lines.size())
        return false;
    std::string& line = lines[index];
    const std::size_t length = contentLength(line);
    if (std::string_view(line).substr(0, length) != edit.before)
        return false;
    line.replace(0, length, edit.after);
    return true;
}

bool write(const std::filesystem::path& file, const std::vector<std::string>& lines,
           coursetool::Report& report) {
    files::WholeFile whole(file);
    for (const std::string& line : lines)
        whole.write(line);
    if (whole.putInPlace(files::WholeFile::Care::Lasting))
        return true;
    report.failure({coursetool::shown(file)},
                   "le fichier ne peut pas être corrigé : " + files::causeOf(whole.error()));
    return false;
}

} // namespace

std::size_t applySafe(const std::vector<Finding>& findings, const std::filesystem::path& root,
                      coursetool::Report& report) {
    std::map<std::string, std::vector<const Edit*>> byFile;
    for (const Finding& finding : findings)
        if (finding.edit && finding.edit->safe)
            byFile[finding.place.file].push_back(&*finding.edit);
    std::size_t changed = 0;
    for (const auto& [name, edits] : byFile) {
        const std::filesystem::path file = coursetool::pathFrom(name);
        if (!files::isFreeOfLinks(file, root)) {
            report.warning({name}, "un lien ne se corrige pas : corriger le fichier qu’il désigne");
            continue;
        }
        const auto bytes = coursetool::readBytes(file, report);
        if (!bytes)
            continue;
        std::vector<std::string> lines = linesOf(*bytes);
        std::size_t here = 0;
        for (const Edit* edit : edits)
            here += apply(*edit, lines);
        if (here > 0 && write(file, lines, report))
            changed += here;
    }
    return changed;
}

} // namespace check
