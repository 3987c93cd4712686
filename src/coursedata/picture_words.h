#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace coursedata {

/// A text file beside the databases of a course: what its pictures show, for who does not see them.
/// A line for each, in UTF-8, "chute.png : Une bille tombe le long d’une règle."; lines that begin
/// with "#" are for authors.
inline constexpr char kPictureWordsFile[] = "descriptions.txt";

/// Largest such file: more than a thousand pictures told at length.
inline constexpr std::size_t kMaxPictureWordsBytes = 1u << 20;

/// The descriptions of a course's pictures, by their file names, whose letter case does not count.
class PictureWords {
public:
    PictureWords() = default;
    /// Of several lines for one picture the first counts; what is no such line is passed over.
    explicit PictureWords(std::string_view file);

    /// A picture that is described already keeps its words.
    void add(std::string_view picture, std::string_view words);
    /// Empty for a picture that nobody has described.
    std::string_view of(std::string_view picture) const;

private:
    std::map<std::u16string, std::string> words_;
};

/// The line of a picture, with its end.
std::string pictureWordsLine(std::string_view picture, std::string_view words);

} // namespace coursedata
