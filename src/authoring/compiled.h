#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace authoring {

// What compiling Markdown gives. Plain values, so that a program without Qt can take them from the
// module that compiles.

/// What is wrong with a source. Line and column count from 1, columns in characters.
struct Fault {
    int line = 0;
    int column = 0;
    std::string sentence; ///< French, without full stop
};

/// Page language as a `*.page` source has it: UTF-8, lines ended by LF, lines that would be taken
/// for a fence with a backslash before them.
struct CompiledText {
    std::string source;
    std::vector<int> markdownLines; ///< for each line of `source`, the line that it comes from
};

/// What a picture shows, in words, for who does not see it. The page language has no place for
/// them; they go to the course's file of descriptions (coursedata/picture_words.h).
struct Description {
    std::string picture; ///< bare file name, UTF-8
    std::string words;
    int line = 0; ///< where it stands, counted from 1; columns in characters
    int column = 0;
};

struct CompiledPage {
    CompiledText text;
    std::vector<Description> descriptions;
    std::vector<Fault> faults; ///< in the order of the source
};

struct CompiledQuestion {
    int type = 0;         ///< 1 check boxes, 2 option buttons, 3 a typed answer; 0 with faults
    std::string solution; ///< UTF-8; of choices the five digits
    CompiledText question;
    std::optional<CompiledText> siFaux;
    std::vector<Description> descriptions;
    std::vector<Fault> faults;
};

/// Compiles Markdown into the page language. The same source gives the same text, always.
class Compiler {
public:
    virtual ~Compiler() = default;

    /// `markdown` is UTF-8 with LF and starts on `firstLine` of its file; `title` is what the
    /// window's title ends with, nothing when empty.
    virtual CompiledPage page(std::string_view markdown, int firstLine,
                              std::string_view title) const = 0;

    /// `askedType` is the type that the front matter asks for.
    virtual CompiledQuestion question(std::string_view markdown, int firstLine,
                                      std::optional<int> askedType) const = 0;
};

} // namespace authoring
