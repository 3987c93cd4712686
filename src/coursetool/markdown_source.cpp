#include "coursetool/markdown_source.h"

#include "coursetool/paths.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "text/utf8.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

// Places of the fields in their tables.
constexpr std::size_t kTitre = 2;
constexpr std::size_t kType = 1;
constexpr std::size_t kSolution = 2;

void tell(const std::vector<authoring::Fault>& faults, const fs::path& file, Report& report) {
    for (const authoring::Fault& fault : faults)
        report.fault({shown(file), fault.line, fault.column}, fault.sentence);
}

} // namespace

std::optional<CompiledSource>
compileMarkdownPage(const fs::path& file, const authoring::Compiler& compiler, Report& report) {
    const auto source = readSource(file, report);
    const auto parts = source ? splitFrontMatter(*source, shown(file), report) : std::nullopt;
    if (!parts)
        return std::nullopt;
    CompiledSource compiled;
    compiled.fields =
        readFields(parts->frontMatter, 2, shown(file), frontMatterFields(coursTable()), report);
    if (!parts->body)
        return compiled;
    const auto title = compiled.fields.values[kTitre].text();
    authoring::CompiledPage page =
        compiler.page(*parts->body, parts->bodyLine, title ? text::toUtf8(*title) : std::string());
    tell(page.faults, file, report);
    compiled.text = std::move(page.text);
    compiled.descriptions = std::move(page.descriptions);
    return compiled;
}

std::optional<CompiledSource>
compileMarkdownQuestion(const fs::path& file, const authoring::Compiler& compiler, Report& report) {
    const auto source = readSource(file, report);
    const auto parts = source ? splitFrontMatter(*source, shown(file), report) : std::nullopt;
    if (!parts)
        return std::nullopt;
    CompiledSource compiled;
    compiled.fields =
        readFields(parts->frontMatter, 2, shown(file), frontMatterFields(contenuTable()), report);
    Fields& fields = compiled.fields;
    if (fields.places[kSolution].line > 0)
        report.fault(fields.places[kSolution],
                     "le texte dit la solution : cocher les bons choix, ou [fer](réponse)");
    std::optional<int> askedType;
    if (const auto type = fields.values[kType].integer())
        askedType = static_cast<int>(*type);
    authoring::CompiledQuestion question =
        compiler.question(parts->body.value_or(std::string_view()), parts->bodyLine, askedType);
    tell(question.faults, file, report);
    fields.values[kType] = toField(contenuTable().fields[kType], std::int64_t{question.type}).value;
    FieldResult solution = toField(contenuTable().fields[kSolution], question.solution);
    if (!solution.complaint.empty())
        report.fault({shown(file), 1, 1}, "la réponse attendue : " + solution.complaint);
    fields.values[kSolution] = std::move(solution.value);
    compiled.text = std::move(question.question);
    compiled.siFaux = std::move(question.siFaux);
    compiled.descriptions = std::move(question.descriptions);
    return compiled;
}

} // namespace coursetool
