#include "coursetool/page_source.h"

#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/source_reader.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "text/utf8.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Places of the fields in their tables.
constexpr std::size_t kTitre = 2;
constexpr std::size_t kQuestion = 3;

QString qString(const std::u16string* text) {
    return text ? QString::fromStdU16String(*text) : QString();
}

std::optional<PageSource> compile(const fs::path& file, const CompilerSource& compiler,
                                  Report& report) {
    const auto bytes = readBytes(file, report);
    if (!bytes)
        return std::nullopt;
    const bool isQuestion = tellsQuestion(*bytes);
    const auto read = PlainSourceReader(compiler).readText(
        isQuestion ? SourceKind::Question : SourceKind::Page, file, *bytes, report);
    if (!read)
        return std::nullopt;
    const std::vector<jet::Value>& values = read->fields.values;
    if (isQuestion)
        return PageSource{{qString(values[kQuestion].text()), markup::DrawnAs::Question},
                          read->text.markdownLines};
    return PageSource{{qString(values.back().text()), markup::DrawnAs::CoursePage,
                       qString(values[kTitre].text())},
                      read->text.markdownLines};
}

} // namespace

std::optional<PageSource> readPageSource(const fs::path& file, const CompilerSource& compiler,
                                         Report& report) {
    if (isMarkdown(file))
        return compile(file, compiler, report);
    const auto bytes = readBytes(file, report);
    if (!bytes)
        return std::nullopt;
    checkUtf8(*bytes, shown(file), report);
    const std::u16string source = text::toUtf16(*bytes);
    const bool isQuestion = file.extension() == kQuestionEnding;
    return PageSource{{QString::fromStdU16String(source),
                       isQuestion ? markup::DrawnAs::Question : markup::DrawnAs::CoursePage},
                      {}};
}

fs::path picturesOf(const fs::path& file) {
    std::error_code error;
    const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
    if (!isMarkdown(file))
        return folder;
    const fs::path whole = fs::absolute(folder, error).lexically_normal();
    // "pages/x.md", "exercises/a/x.md"
    for (const fs::path& part : {whole, whole.parent_path()})
        if (part.filename() == (part == whole ? kPagesFolder : kExercisesFolder))
            if (const fs::path files = part.parent_path() / kFilesFolder;
                fs::is_directory(files, error))
                return files;
    return folder;
}

} // namespace coursetool
