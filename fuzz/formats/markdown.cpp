// Pages and questions in Markdown: compiled, and drawn when there is no fault in them.

#include "authoring/markdown_compiler.h"
#include "drawings.h"
#include "formats/all.h"
#include "markup/any_page.h"
#include "viewer/page_sheet.h"

#include <algorithm>

namespace fuzz {

namespace {

void requirePlaces(const std::vector<authoring::Fault>& faults, long lines) {
    for (const authoring::Fault& fault : faults) {
        require(fault.line >= 1 && fault.line <= lines, "a fault has a line of the source");
        require(fault.column >= 1, "a fault has a column");
        require(!fault.sentence.empty(), "a fault has a sentence");
    }
}

void draw(const authoring::CompiledText& text, markup::DrawnAs as) {
    static test_support::FakePictures pictures;
    pictures.anyName = true;
    const auto lines = std::count(text.source.begin(), text.source.end(), '\n');
    require(static_cast<long>(text.markdownLines.size()) >= lines,
            "each compiled line comes from a line");
    markup::DrawingState state;
    const auto drawn = markup::drawPage({pageText(text.source), as}, {state, pictures, fonts()});
    viewer::bareSheet(drawn, fonts());
}

void readOne(Input input) {
    static const authoring::MarkdownCompiler compiler(fonts());
    // The tool refuses what is not UTF-8, and reads any line ends as LF.
    const std::string source =
        QString::fromUtf8(textOf(input).data(), static_cast<qsizetype>(input.size()))
            .remove(QChar(0xFFFD))
            .remove(u'\r')
            .toStdString();
    const long lines = 1 + std::count(source.begin(), source.end(), '\n');
    const auto page = compiler.page(source, 1, "Titre");
    requirePlaces(page.faults, lines);
    if (page.faults.empty())
        draw(page.text, markup::DrawnAs::CoursePage);
    const auto question = compiler.question(source, 1, {});
    requirePlaces(question.faults, lines);
    if (question.faults.empty())
        draw(question.question, markup::DrawnAs::Question);
}

} // namespace

const Format kMarkdown{
    "markdown",
    readOne,
    {{"tests/authoring/corpus", ".md"},
     {"src/coursetool/template", ".md"},
     {"fuzz/corpus/markdown", ""}},
    {"*",
     "**",
     "`",
     "```\n",
     "$",
     "$$",
     "\\",
     "{",
     "}",
     "[",
     "](page:1)",
     "![](a.png)",
     "\n\n",
     "> ",
     "- ",
     "- [x] ",
     "1. ",
     "| ",
     "|---|\n",
     "# ",
     "<",
     "<!--",
     "-->",
     "&nbsp;",
     "\\ce{",
     "\\frac{",
     "\\sqrt{",
     "^{",
     "_{",
     "##SI",
     "+++\n",
     "é",
     "\t",
     "  \n",
     "%",
     "(réponse)",
     "---\n",
     "\\left(",
     "\\right)",
     "\\begin{array}",
     "\\vec{",
     "->",
     "^^",
     "\xEF\xBF\xBF",
     "\xF0\x9D\x91\x8E"},
    20'000,
};

} // namespace fuzz
