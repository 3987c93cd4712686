#include "coursetool/source_files.h"

#include "coursetool/file_list.h"
#include "coursetool/markdown_source.h"
#include "coursetool/paths.h"

namespace coursetool {

namespace fs = std::filesystem;

bool isMarkdown(const fs::path& file) {
    return file.extension() == kMarkdownEnding;
}

std::vector<fs::path> sourcesIn(const fs::path& folder, const fs::path& top,
                                std::string_view ending, std::string_view alsoExpected,
                                Report& report) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : entriesOf(folder, report)) {
        const std::string name = shown(entry.path().filename());
        std::error_code error;
        if ((name.ends_with(ending) || isMarkdown(name)) && entry.is_regular_file(error)) {
            if (isFileOf(top, entry, report))
                files.push_back(entry.path());
        } else if (!name.starts_with('.') && name != alsoExpected) {
            report.warning({shown(entry.path())}, "laissé de côté : ce n’est pas un fichier " +
                                                      std::string(ending) + " ou .md");
        }
    }
    return files;
}

} // namespace coursetool
