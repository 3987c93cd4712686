// The sources of a course as a folder, given to the linter, which mends what it may, and to build.

#include "authoring/markdown_compiler.h"
#include "check/check.h"
#include "coursetool/build.h"
#include "drawings.h"
#include "folder.h"
#include "formats/all.h"

#include <memory>

namespace fuzz {

namespace {

std::FILE* nowhere() {
    static std::FILE* const file = std::fopen("/dev/null", "w");
    return file;
}

void readOne(Input input) {
    static const authoring::MarkdownCompiler compiler(fonts());
    const CourseFolder folder;
    folder.write(textOf(input));
    coursetool::Report report;
    coursetool::OutputBuffer out(nowhere());
    check::CheckRequest request;
    request.course = folder.root();
    request.format = check::CheckFormat::Sarif;
    request.fix = true;
    check::check(request, fonts(), out, report);
    coursetool::build(folder.root(), folder.output(), report, [] { return &compiler; });
    folder.requireWithin(report);
}

} // namespace

const Format kCourseSource{
    "course-source",
    readOne,
    {{"fuzz/corpus/course-source", ""}},
    pageWords({"\n=== pages/2.page\n",
               "\n=== files/a.svg\n",
               "\n=== descriptions.txt\n",
               "\n=== exercises/2/chapter.toml\n",
               " -> !\n",
               "+++\n",
               "\n",
               "Numeropage = ",
               "Index = ",
               "titre = ",
               "\"",
               "'''",
               "\"\"\"",
               "[",
               "]",
               "{",
               "true",
               "1e9",
               "-1",
               "2147483648",
               "NaN",
               "1979-05-27",
               "imprimable = true\n",
               "debutimp = ",
               "sommaire = ",
               "REFERENCE = ",
               "type = ",
               "solution = \"",
               "Chapitre = ",
               "Nbquest = ",
               "¶",
               "é",
               "\xFF",
               "\\u0000",
               "# orvalente",
               "../",
               "CON",
               "Zekx.mdb",
               ".md",
               "$x$",
               "- [x] "}),
    16 * 1024,
};

} // namespace fuzz
