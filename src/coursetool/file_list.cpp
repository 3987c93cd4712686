#include "coursetool/file_list.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/within.h"
#include "jet/names.h"
#include "text/utf8.h"

#include <algorithm>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// The ASCII characters of a name in lower case: the same for all its case variants.
std::string caseKey(const fs::path& name) {
    std::string key;
    for (const char c : shown(name))
        if (static_cast<unsigned char>(c) < 0x80)
            key += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    return key;
}

void tellLeadsOut(const fs::path& link, Report& report) {
    report.fault({shown(link)}, "ce lien mène hors du dossier : à remplacer par une copie de ce "
                                "qu’il désigne, ou à enlever");
}

class TreeList {
public:
    TreeList(const fs::path& root, const fs::path& top, Report& report)
        : root_(root), top_(top), report_(report) {}

    FileTree list() {
        listFolder({});
        return std::move(tree_);
    }

private:
    void listFolder(const fs::path& relative) {
        for (const fs::directory_entry& entry : entriesOf(root_ / relative, report_)) {
            const fs::path name = relative / entry.path().filename();
            std::error_code error;
            if (entry.is_directory(error) && !entry.is_symlink(error)) {
                tree_.directories.push_back(name);
                listFolder(name);
            } else if (isFileOf(top_, entry, report_)) {
                tree_.files.push_back(name);
            } else if (!entry.is_regular_file(error)) {
                report_.fault({shown(entry.path())},
                              "ni fichier ni dossier : à remplacer par une copie de ce qu’il "
                              "désigne, ou à enlever");
            }
        }
    }

    const fs::path& root_;
    const fs::path& top_;
    Report& report_;
    FileTree tree_;
};

} // namespace

std::vector<fs::directory_entry> entriesOf(const fs::path& directory, Report& report) {
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    for (fs::directory_iterator it(directory, error), end; !error && it != end; it.increment(error))
        entries.push_back(*it);
    if (error)
        report.fault({shown(directory)},
                     "le dossier ne peut pas être lu : " + files::causeOf(error));
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return a.path().u8string() < b.path().u8string();
    });
    return entries;
}

bool isFileOf(const fs::path& top, const fs::directory_entry& entry, Report& report) {
    if (files::isFileWithin(entry.path(), top))
        return true;
    std::error_code error;
    if (entry.is_regular_file(error))
        tellLeadsOut(entry.path(), report);
    return false;
}

bool isFolderOf(const fs::path& top, const fs::path& folder, Report& report) {
    if (files::isDirectoryWithin(folder, top))
        return true;
    std::error_code error;
    if (fs::is_directory(folder, error))
        tellLeadsOut(folder, report);
    return false;
}

FileTree listTree(const fs::path& directory, const fs::path& top, Report& report) {
    return TreeList(directory, top, report).list();
}

void NameTable::add(const fs::path& name) {
    names_[caseKey(name)].push_back(name);
}

std::optional<fs::path> NameTable::find(const fs::path& name) const {
    const auto found = names_.find(caseKey(name));
    if (found == names_.end())
        return std::nullopt;
    const auto& candidates = found->second;
    if (std::find(candidates.begin(), candidates.end(), name) != candidates.end())
        return name;
    const std::u16string wanted = text::toUtf16(shown(name));
    const auto same =
        std::find_if(candidates.begin(), candidates.end(), [&](const fs::path& other) {
            return jet::sameName(text::toUtf16(shown(other)), wanted);
        });
    return same != candidates.end() ? std::optional(*same) : std::nullopt;
}

} // namespace coursetool
