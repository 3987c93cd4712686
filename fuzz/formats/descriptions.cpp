// What the pictures of a course show, in words, as a text file beside its databases.

#include "coursedata/picture_words.h"
#include "formats/all.h"

#include <algorithm>
#include <string>

namespace fuzz {

namespace {

void readOne(Input input) {
    const std::string_view text = textOf(input);
    coursedata::PictureWords words(text);
    const std::string name(text.substr(0, std::min<std::size_t>(text.find(':'), 200)));
    words.of(name);
    words.add(name, text);
    const std::string line = coursedata::pictureWordsLine(name, words.of(name));
    require(line.ends_with('\n'), "a line ends");
}

} // namespace

const Format kDescriptions{
    "descriptions",
    readOne,
    {{"fuzz/corpus/descriptions", ""}},
    {"# ", "\n", "\r\n", ": ", " : ", ".png", "\xEF\xBB\xBF", "É", "é", "\xFF", "\xC3"},
};

} // namespace fuzz
