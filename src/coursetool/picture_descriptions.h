#pragma once

#include "authoring/compiled.h"
#include "coursedata/picture_words.h"
#include "coursetool/report.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace coursetool {

/// What the pictures of a course show, gathered from the author's own file of descriptions and from
/// pages and questions in Markdown.
class PictureDescriptions {
public:
    /// Takes the author's file, in `files`, where there is one.
    void read(const std::filesystem::path& files, Report& report);
    /// Takes those of a source. A picture that is described in two ways is a fault: its words are
    /// the same wherever it shows.
    void take(const std::vector<authoring::Description>& descriptions,
              const std::filesystem::path& source, Report& report);

    /// Empty when nobody describes the picture.
    std::string_view of(std::string_view picture) const { return words_.of(picture); }
    bool isEmpty() const { return own_.empty() && lines_.empty(); }
    /// Its name, as the author has written it.
    const std::filesystem::path& name() const { return name_; }
    /// The file that a course has: the author's as it stands, then a line for each of the others.
    std::string file() const;

private:
    std::filesystem::path name_ = coursedata::kPictureWordsFile;
    coursedata::PictureWords words_;
    std::string own_;
    std::string lines_;
};

} // namespace coursetool
