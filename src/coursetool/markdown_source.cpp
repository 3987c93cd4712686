#include "coursetool/markdown_source.h"

#include "coursetool/field_value.h"
#include "coursetool/tables.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

// Places of the fields in their tables.
constexpr std::size_t kTitre = 2;
constexpr std::size_t kType = 1;
constexpr std::size_t kSolution = 2;

void tell(const std::vector<authoring::Fault>& faults, const std::string& file, Report& report) {
    for (const authoring::Fault& fault : faults)
        report.fault({file, fault.line, fault.column}, fault.sentence);
}

} // namespace

CompiledSource compileMarkdownPage(const SourceParts& parts, const std::string& file,
                                   const authoring::Compiler& compiler, Report& report) {
    CompiledSource compiled;
    compiled.fields =
        readFields(parts.frontMatter, 2, file, frontMatterFields(coursTable()), report);
    if (!parts.body)
        return compiled;
    const auto* const title = compiled.fields.values[kTitre].text();
    authoring::CompiledPage page =
        compiler.page(*parts.body, parts.bodyLine, title ? text::toUtf8(*title) : std::string());
    tell(page.faults, file, report);
    compiled.text = std::move(page.text);
    compiled.descriptions = std::move(page.descriptions);
    return compiled;
}

CompiledSource compileMarkdownQuestion(const SourceParts& parts, const std::string& file,
                                       const authoring::Compiler& compiler, Report& report) {
    CompiledSource compiled;
    compiled.fields =
        readFields(parts.frontMatter, 2, file, frontMatterFields(contenuTable()), report);
    Fields& fields = compiled.fields;
    if (fields.places[kSolution].line > 0)
        report.fault(fields.places[kSolution],
                     "le texte dit la solution : cocher les bons choix, ou [fer](réponse)");
    std::optional<int> askedType;
    if (const auto type = fields.values[kType].integer())
        askedType = static_cast<int>(*type);
    authoring::CompiledQuestion question =
        compiler.question(parts.body.value_or(std::string_view()), parts.bodyLine, askedType);
    tell(question.faults, file, report);
    fields.values[kType] = toField(contenuTable().fields[kType], std::int64_t{question.type}).value;
    FieldResult solution = toField(contenuTable().fields[kSolution], question.solution);
    if (!solution.complaint.empty())
        report.fault({file, 1, 1}, "la réponse attendue : " + solution.complaint);
    fields.values[kSolution] = std::move(solution.value);
    compiled.text = std::move(question.question);
    compiled.siFaux = std::move(question.siFaux);
    compiled.descriptions = std::move(question.descriptions);
    return compiled;
}

} // namespace coursetool
