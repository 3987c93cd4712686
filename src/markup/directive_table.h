#pragma once

#include <QStringView>

#include <span>

namespace markup {

class Renderer;

enum class Match { Prefix, Whole };

/// What follows the keyword: text that is printed or read as numbers, or the name of a file, which
/// has to be letter for letter that of the disc.
enum class Argument { Text, File };

/// One form of directive. `run` gets the directive without its leading "##".
struct Directive {
    QStringView keyword;
    Match match;
    void (*run)(Renderer& renderer, QStringView d);
    Argument argument = Argument::Text;

    /// Most directives differ in their first letter already; a page makes this test for every row
    /// and every line.
    bool matches(QStringView d) const {
        if (d.isEmpty() || d.front() != keyword.front())
            return false;
        return match == Match::Prefix ? d.startsWith(keyword) : d == keyword;
    }
};

/// All directives, in the order in which they are tested. Every one that matches runs: there is no
/// early exit, so the order and the overlaps are part of the language.
std::span<const Directive> directiveTable();

} // namespace markup
