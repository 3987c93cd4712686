#pragma once

#include <QString>

#include <cstddef>
#include <vector>

namespace authoring {

// A Markdown source as a tree. `at` is the offset of the element's first character in the source,
// in bytes; of elements without a text of their own, that of the last text before.

struct Inline {
    enum class Kind {
        Text,
        Break, ///< the author ends the line here
        Emphasis,
        Strong,
        Code,
        Formula,        ///< `text` is what stands between the signs
        DisplayFormula, ///< the same, between double signs
        Link,
        Picture
    };
    Kind kind = Kind::Text;
    std::size_t at = 0;
    QString text;   ///< of texts, code and formulas; a line end in it is a blank
    QString target; ///< of links and pictures
    QString title;  ///< of links and pictures
    std::vector<Inline> children = {};
};

enum class Alignment { Left, Centre, Right };

struct CodeLine {
    std::size_t at = 0;
    QString text;
};

struct Block {
    enum class Kind {
        Document,
        Heading,
        Paragraph,
        Quote,
        List,
        Item,
        Table,
        Row,
        Cell,
        Code,
        Html,
        Rule
    };
    enum class Task { None, Open, Ticked };

    Kind kind = Kind::Document;
    std::size_t at = 0;
    int level = 0;          ///< of headings, from 1; of ordered lists the first number
    bool ordered = false;   ///< of lists
    char delimiter = '.';   ///< behind the numbers of a list
    bool tight = true;      ///< of lists: no blank lines between the items
    bool heading = false;   ///< of rows
    Task task = Task::None; ///< of items
    Alignment alignment = Alignment::Left; ///< of cells
    QString info;                          ///< of code: the word after the fence
    std::vector<CodeLine> lines = {};      ///< of code and HTML
    std::vector<Inline> inlines = {};      ///< of headings, paragraphs and cells
    std::vector<Block> children = {};
};

/// All text of inline elements, formulas as they are written.
QString plainText(const std::vector<Inline>& inlines);

} // namespace authoring
