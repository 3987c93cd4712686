#include "coursetool/picture_descriptions.h"

#include "coursetool/file_list.h"
#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "files/within.h"

namespace coursetool {

namespace fs = std::filesystem;

void PictureDescriptions::read(const fs::path& files, Report& report) {
    std::error_code error;
    NameTable names;
    for (const fs::directory_entry& entry : fs::directory_iterator(files, error))
        names.add(entry.path().filename());
    name_ = names.find(coursedata::kPictureWordsFile).value_or(coursedata::kPictureWordsFile);
    const fs::path file = files / name_;
    if (!files::isFileWithin(file, files))
        return; // there is none, or it leads out of there, which the copying of files refuses
    if (fs::file_size(file, error) > coursedata::kMaxPictureWordsBytes) {
        report.fault({shown(file)}, "plus d’un mégaoctet de descriptions");
        return;
    }
    const auto text = readBytes(file, report);
    if (!text)
        return;
    checkUtf8(*text, shown(file), report);
    own_ = *text;
    words_ = coursedata::PictureWords(own_);
}

void PictureDescriptions::take(const std::vector<authoring::Description>& descriptions,
                               const fs::path& source, Report& report) {
    for (const authoring::Description& description : descriptions) {
        const std::string_view known = words_.of(description.picture);
        if (known.empty()) {
            words_.add(description.picture, description.words);
            lines_ += coursedata::pictureWordsLine(description.picture, description.words);
        } else if (known != description.words) {
            report.fault({shown(source), description.line, description.column},
                         inQuotes(description.picture) + " est décrite autrement ailleurs : " +
                             inQuotes(std::string(known)) + " ; une image a une description");
        }
    }
}

std::string PictureDescriptions::file() const {
    const bool isOpen = !own_.empty() && !own_.ends_with('\n');
    return own_ + (isOpen && !lines_.empty() ? "\n" : "") + lines_;
}

} // namespace coursetool
