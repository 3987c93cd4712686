#include "coursetool/convert.h"

#include "coursetool/paths.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/toml_text.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

constexpr std::string_view kType = "type";

/// Calls `take` with each line of the fields, its line end included.
template <class Take>
void forEachLine(std::string_view text, Take take) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t size = end == text.npos ? text.size() : end + 1;
        take(text.substr(0, size));
        text.remove_prefix(size);
    }
}

/// The fields of a question with what its text tells: its type and its solution.
std::string questionFields(std::string_view written, const Fields& fields) {
    std::string text;
    forEachLine(written, [&](std::string_view line) {
        if (!line.starts_with(kType))
            text += line;
    });
    const auto type = fields.values[1].integer();
    const auto* const solution = fields.values[2].text();
    text += "type = " + std::to_string(type.value_or(0)) + '\n';
    text += "solution = " + tomlString(solution ? text::toUtf8(*solution) : std::string()) + '\n';
    return text;
}

std::string fenced(const std::string& fields) {
    return std::string(kFence) + '\n' + fields + std::string(kFence);
}

} // namespace

void convert(const std::filesystem::path& file, const authoring::Compiler& compiler,
             OutputBuffer& out, Report& report) {
    const auto source = readSource(file, report);
    const auto parts = source ? splitFrontMatter(*source, shown(file), report) : std::nullopt;
    if (!parts)
        return;
    const bool question = tellsQuestion(*source);
    const CompiledSource compiled =
        question ? compileMarkdownQuestion(*parts, shown(file), compiler, report)
                 : compileMarkdownPage(*parts, shown(file), compiler, report);
    if (report.hasFaults())
        return;
    out.text() += fenced(question ? questionFields(parts->frontMatter, compiled.fields)
                                  : std::string(parts->frontMatter));
    if (compiled.text)
        out.text() += '\n' + compiled.text->source;
    if (compiled.siFaux)
        out.text() += std::string(kFence) + '\n' + compiled.siFaux->source;
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
