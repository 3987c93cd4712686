#include "coursetool/source_reader.h"

#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "text/utf8.h"

#include <algorithm>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

jet::Value memo(std::optional<std::string_view> sourceText) {
    if (!sourceText)
        return {};
    return text::toUtf16(toDatabaseText(*sourceText));
}

std::optional<std::string_view> sourceOf(const std::optional<authoring::CompiledText>& text) {
    return text ? std::optional<std::string_view>(text->source) : std::nullopt;
}

const TableRule& tableOf(SourceKind kind) {
    switch (kind) {
    case SourceKind::Page:
        return coursTable();
    case SourceKind::Test:
        return descriptionTable();
    case SourceKind::Question:
        break;
    }
    return contenuTable();
}

ReadSource readPlain(SourceKind kind, const fs::path& file, const SourceParts& parts,
                     Report& report) {
    ReadSource record;
    const TableRule& table = tableOf(kind);
    record.fields = readFields(parts.frontMatter, 2, shown(file), frontMatterFields(table), report);
    record.text.firstLine = parts.bodyLine;
    std::vector<jet::Value>& values = record.fields.values;
    if (kind == SourceKind::Page) {
        values.push_back(memo(parts.body));
    } else if (parts.body) {
        const QuestionParts texts = splitQuestion(*parts.body, parts.bodyLine, shown(file), report);
        values.push_back(memo(texts.question));
        values.push_back(memo(texts.siFaux));
        record.comment.firstLine = texts.siFauxLine;
    } else {
        values.resize(table.fields.size());
    }
    return record;
}

ReadSource readMarkdown(SourceKind kind, const fs::path& file, const SourceParts& parts,
                        const authoring::Compiler& compiler, Report& report) {
    const bool isPage = kind == SourceKind::Page;
    CompiledSource compiled = isPage
                                  ? compileMarkdownPage(parts, shown(file), compiler, report)
                                  : compileMarkdownQuestion(parts, shown(file), compiler, report);
    ReadSource record;
    record.descriptions = std::move(compiled.descriptions);
    record.fields = std::move(compiled.fields);
    record.fields.values.push_back(memo(sourceOf(compiled.text)));
    if (!isPage)
        record.fields.values.push_back(memo(sourceOf(compiled.siFaux)));
    if (compiled.text)
        record.text.markdownLines = std::move(compiled.text->markdownLines);
    if (compiled.siFaux)
        record.comment.markdownLines = std::move(compiled.siFaux->markdownLines);
    return record;
}

} // namespace

int TextPlace::lineOf(int line) const {
    if (markdownLines.empty())
        return firstLine + std::max(line, 1) - 1;
    if (line < 1)
        return 1;
    return markdownLines[std::min(static_cast<std::size_t>(line), markdownLines.size()) - 1];
}

std::shared_ptr<const ReadSource> PlainSourceReader::read(SourceKind kind, const fs::path& file,
                                                          Report& report) {
    const auto bytes = readBytes(file, report);
    return bytes ? readText(kind, file, *bytes, report) : nullptr;
}

std::shared_ptr<const ReadSource> PlainSourceReader::readText(SourceKind kind, const fs::path& file,
                                                              std::string_view bytes,
                                                              Report& report) {
    const auto source = sourceOfBytes(bytes, shown(file), report);
    if (!source)
        return nullptr;
    ReadSource record;
    if (kind == SourceKind::Test) {
        record.frontMatter = *source;
        record.fields =
            readFields(*source, 1, shown(file), frontMatterFields(descriptionTable()), report);
    } else {
        const auto parts = splitFrontMatter(*source, shown(file), report);
        const auto* const compiler =
            parts && isMarkdown(file) ? compilerFor(file, report) : nullptr;
        if (!parts || (isMarkdown(file) && !compiler))
            return nullptr;
        record = compiler ? readMarkdown(kind, file, *parts, *compiler, report)
                          : readPlain(kind, file, *parts, report);
        record.frontMatter = parts->frontMatter;
        record.frontMatterLine = 2;
    }
    record.file = shown(file);
    record.place = record.fields.places.front().line > 0 ? record.fields.places.front()
                                                         : Place{record.file, 1, 1};
    return std::make_shared<const ReadSource>(std::move(record));
}

std::shared_ptr<const ReadSource> TwiceReadSources::read(SourceKind kind, const fs::path& file,
                                                         Report& report) {
    const std::string name = shown(file);
    if (auto known = kept_.extract(name); !known.empty())
        return std::move(known.mapped());
    const std::size_t before = report.remarks().size();
    auto record = reader_.read(kind, file, report);
    // What has to be said is said to the second, too.
    if (record && report.remarks().size() == before)
        kept_.emplace(name, record);
    return record;
}

const authoring::Compiler* PlainSourceReader::compilerFor(const fs::path& file, Report& report) {
    // Asked once: a compiler that is missing is one fault, not one a file.
    if (!askedForCompiler_) {
        askedForCompiler_ = true;
        compiler_ = compilerSource_ ? compilerSource_() : nullptr;
        if (!compilerSource_)
            report.fault({shown(file)}, "ici, le Markdown n’est pas lu");
    }
    return compiler_;
}

} // namespace coursetool
