#include "coursetool/symbols.h"

#include "coursedata/symbol_names.h"
#include "coursetool/file_list.h"
#include "coursetool/json_string.h"
#include "coursetool/paths.h"
#include "files/within.h"
#include "text/utf8.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// The folder of a course's own symbols, in any letter case; empty when there is none.
fs::path symbolFolder(const fs::path& course, Report& report) {
    NameTable folders;
    for (const fs::directory_entry& entry : entriesOf(course, report)) {
        if (files::isDirectoryWithin(entry.path(), course))
            folders.add(entry.path().filename());
    }
    const auto name = folders.find(coursedata::kSymbolFolder);
    return name ? course / *name : fs::path();
}

/// The names of the files in the folder; those that name no symbol are warned about.
std::vector<std::string> symbolFiles(const fs::path& folder, const fs::path& course,
                                     Report& report) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : entriesOf(folder, report)) {
        const std::string name = shown(entry.path().filename());
        std::error_code error;
        if (entry.is_regular_file(error) && coursedata::symbolKey(name)) {
            if (isFileOf(course, entry, report))
                names.push_back(name);
        } else if (!name.starts_with('.')) {
            report.warning(
                {shown(entry.path())},
                "laissé de côté : le nom d’un symbole commence par sa clé de deux "
                "caractères, suivie de « - » ou « . », et finit comme celui d’une image");
        }
    }
    return names;
}

void warnAboutHidden(const fs::path& folder, const std::vector<std::string>& names,
                     const std::map<std::string, coursedata::SymbolFile>& list, Report& report) {
    for (const std::string& name : names) {
        const coursedata::SymbolFile& shownOne = list.at(coursedata::symbolKey(name).value());
        if (shownOne.name != name)
            report.warning({shown(folder / pathFrom(name))},
                           "laissé de côté : sa clé est celle de " + inQuotes(shownOne.name));
    }
}

/// `folder` is empty for a symbol of the program.
void appendJson(const std::string& key, const std::string& file, const std::string& folder,
                std::string& out) {
    out += "{\"key\":";
    appendJsonString(key, out);
    out += ",\"file\":";
    appendJsonString(file, out);
    out += ",\"folder\":";
    if (folder.empty())
        out += "null";
    else
        appendJsonString(folder, out);
    out += "}\n";
}

} // namespace

void listSymbols(const fs::path& course, bool json, OutputBuffer& out, Report& report) {
    const fs::path folder = course.empty() ? fs::path() : symbolFolder(course, report);
    const std::vector<std::string> names =
        folder.empty() ? std::vector<std::string>() : symbolFiles(folder, course, report);
    const auto list = coursedata::imageListOf(names);
    warnAboutHidden(folder, names, list, report);
    for (const auto& [key, file] : list) {
        const std::string place = file.isOwn ? std::string() : shown(folder);
        if (json)
            appendJson(key, file.name, place, out.text());
        else
            out.text() += key + '\t' + text::plainLine(file.name) + '\t' +
                          (file.isOwn ? "Orvalente" : text::plainLine(place)) + '\n';
        out.lineDone();
    }
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
