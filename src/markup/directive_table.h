#pragma once

#include "markup/columns.h"

#include <QStringView>

#include <span>

namespace markup {

class Renderer;

enum class Match { Prefix, Whole };

/// What follows the keyword.
enum class Argument {
    None,       ///< nothing is read
    Text,       ///< printed or measured, to the end of the line
    Signs,      ///< two signs, a character each
    Number,     ///< a number in the last characters, see Directive::columns
    Factor,     ///< a number from the keyword's end on
    Shadow,     ///< width at a fixed place, colour in the last characters
    Cell,       ///< left and right edge, number of the cell
    Halves,     ///< two texts with a "#" between them
    Link,       ///< caption, "#", target
    Key,        ///< a key of the image list in the last characters
    KeyedLink,  ///< a key of the image list, target
    TippedLink, ///< a key of the image list, tooltip, "#", target
    PageLink,   ///< caption or tooltip, "#", number of a page
    Surface,    ///< the name of a surface, or what is to become of its height
    File,       ///< the name of a file
    SizedFile,  ///< the name of a file, width and height
};

/// Where a directive does what it is for.
enum class Use { Anywhere, Pages, Questions };

/// One form of directive. `run` gets the directive without its leading "##".
struct Directive {
    QStringView keyword;
    Match match;
    void (*run)(Renderer& renderer, QStringView d);
    Argument argument = Argument::None;
    Columns columns = {}; ///< of a Number
    Use use = Use::Anywhere;

    /// The name of a file has to be letter for letter that of the disc.
    bool namesAFile() const {
        return argument == Argument::File || argument == Argument::SizedFile;
    }

    /// Most directives differ in their first letter already.
    bool matches(QStringView d) const {
        if (d.isEmpty() || d.front() != keyword.front())
            return false;
        return match == Match::Prefix ? d.startsWith(keyword) : d == keyword;
    }
};

/// All directives, in the order in which they are tested. Every one that matches runs: there is no
/// early exit, so the order and the overlaps are part of the language.
std::span<const Directive> directiveTable();

/// The rows that a directive can match, by its first letter, in the order of the table.
std::span<const Directive* const> directivesFrom(QChar first);

} // namespace markup
