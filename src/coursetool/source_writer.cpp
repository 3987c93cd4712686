#include "coursetool/source_writer.h"

#include "coursetool/field_text.h"
#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "text/utf8.h"

namespace coursetool {

void SourceWriter::writePage(const SourceRecord& record, const std::filesystem::path& file) {
    const TableRule& rule = coursTable();
    std::string text = fencedFrontMatter(record, rule);
    if (const auto fpc = body(record, rule.fields.back(), record.values.back()))
        text += '\n' + *fpc;
    writeFile(text, file);
}

void SourceWriter::writeChapter(const SourceRecord& record, const std::filesystem::path& file) {
    writeFile(frontMatter(record, descriptionTable()), file);
}

void SourceWriter::writeQuestion(const SourceRecord& record, const std::filesystem::path& file) {
    const TableRule& rule = contenuTable();
    const std::size_t last = rule.fields.size() - 1;
    const FieldRule& questionField = rule.fields[last - 1];
    auto question = body(record, questionField, record.values[last - 1]);
    const auto comment = body(record, rule.fields[last], record.values[last]);
    if (comment && !question) {
        tell(record, questionField, "la question absente devient un texte vide, SiFaux la suit");
        question = "";
    } else if (comment && !question->empty() && !question->ends_with('\n')) {
        tell(record, questionField,
             "sans fin de ligne à la fin : il en reçoit une, que SiFaux suit");
        *question += '\n';
    }
    std::string text = fencedFrontMatter(record, rule);
    if (question)
        text += '\n' + *question;
    if (comment)
        text.append(kFence).append("\n").append(*comment);
    writeFile(text, file);
}

std::string SourceWriter::fencedFrontMatter(const SourceRecord& record, const TableRule& rule) {
    std::string text(kFence);
    return text.append("\n").append(frontMatter(record, rule)).append(kFence);
}

std::string SourceWriter::frontMatter(const SourceRecord& record, const TableRule& rule) {
    std::string text;
    const auto fields = frontMatterFields(rule);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const FieldText field = toToml(fields[i], record.values[i]);
        if (!field.complaint.empty())
            tell(record, fields[i], field.complaint);
        if (field.toml)
            text.append(fields[i].name).append(" = ").append(*field.toml).append("\n");
        else if (fields[i].required)
            tell(record, fields[i], "il manque : build le demandera");
    }
    return text;
}

std::optional<std::string> SourceWriter::body(const SourceRecord& record, const FieldRule& field,
                                              const jet::Value& value) {
    if (value.isNull())
        return std::nullopt;
    const auto* text = value.text();
    if (!text) {
        tell(record, field, kNoText);
        return std::nullopt;
    }
    if (!hasOnlyCharacters(*text))
        tell(record, field, kHasNoCharacters);
    bool clean = true;
    std::string source = toSourceText(text::toUtf8(*text), clean);
    if (!clean)
        tell(record, field, "un retour chariot ou un saut de ligne isolé devient une fin de ligne");
    return source;
}

void SourceWriter::writeFile(const std::string& text, const std::filesystem::path& file) {
    files::WholeFile source(file);
    source.write(text);
    if (!source.putInPlace())
        report_.failure(file, files::kFileNotWritten, source.error());
}

void SourceWriter::tell(const SourceRecord& record, const FieldRule& field,
                        const std::string& sentence) {
    report_.fault(record.place, "champ " + inQuotes(field.name) + " : " + sentence);
}

} // namespace coursetool
