#include "check/read_course.h"

#include "authoring/markdown_compiler.h"
#include "check/silences.h"
#include "coursetool/dump.h"
#include "coursetool/file_list.h"
#include "coursetool/markdown_source.h"
#include "coursetool/paths.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/table_source.h"
#include "files/within.h"
#include "jet/database_file.h"

#include <algorithm>

namespace check {

namespace fs = std::filesystem;
using coursetool::Place;
using coursetool::Report;
using coursetool::shown;

namespace {

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool isMarkdown(const fs::path& path) {
    return path.extension() == coursetool::kMarkdownEnding;
}

/// The files of a folder with this ending, and those in Markdown, in record order.
std::vector<fs::path> sourcesIn(const fs::path& folder, const fs::path& top,
                                std::string_view ending, Report& report) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : coursetool::entriesOf(folder, report)) {
        std::error_code error;
        if ((shown(entry.path()).ends_with(ending) || isMarkdown(entry.path())) &&
            entry.is_regular_file(error) && coursetool::isFileOf(top, entry, report))
            files.push_back(entry.path());
    }
    return files;
}

/// What stands in a file of the sources, compiled to the page language where it is written in
/// another one.
struct SourceFile {
    std::string file;
    coursetool::Fields fields;
    std::set<std::string> ignored;
    std::string source; ///< with LF
    int bodyLine = 0;
    std::optional<std::string_view> body; ///< into `source`
};

/// Nothing when it cannot be taken apart, which is reported.
std::optional<SourceFile> readFile(const fs::path& path, const coursetool::TableRule& table,
                                   Report& report) {
    auto source = coursetool::readSource(path, report);
    if (!source)
        return std::nullopt;
    SourceFile file{shown(path), {}, {}, *std::move(source), 0, {}};
    const auto parts = coursetool::splitFrontMatter(file.source, file.file, report);
    if (!parts)
        return std::nullopt;
    file.fields = coursetool::readFields(parts->frontMatter, 2, file.file,
                                         coursetool::frontMatterFields(table), report);
    file.ignored = ignoredIn(parts->frontMatter, 2, file.file, report);
    file.bodyLine = parts->bodyLine;
    file.body = parts->body;
    return file;
}

Source sourceOf(Source::Kind kind, std::string_view text, const std::string& file, int line) {
    return {kind, fromUtf8(coursetool::toDatabaseText(text)), {file, line, 1}, {}, true};
}

/// A source that was compiled from Markdown: its findings name the lines of that.
Source compiledSource(Source::Kind kind, const authoring::CompiledText& text,
                      const std::string& file) {
    Source source{kind, fromUtf8(coursetool::toDatabaseText(text.source)), {file, 1, 1}, {}, false};
    std::vector<int> lines;
    // The last is that of what stands after the last line end.
    for (int line = 1; line <= static_cast<int>(source.lines().size()) + 1; ++line)
        lines.push_back(text.lineOf(line));
    source.setFileLines(std::move(lines));
    return source;
}

class SourceReader {
public:
    SourceReader(const fs::path& directory, const page::TextMetrics& metrics, Report& report)
        : compiler_(metrics), report_(report) {
        course_.root = directory;
        course_.filesFolder = directory / coursetool::kFilesFolder;
        course_.discFolder = directory / coursetool::kDiscFolder;
        course_.pagesPlace = shown(directory / coursetool::kPagesFolder);
    }

    Course read() {
        course_.ignored = ignoredInCourse(course_.root, report_);
        course_.descriptions.read(course_.filesFolder, report_);
        readPages();
        readExercises();
        course_.indexPages();
        return std::move(course_);
    }

private:
    void readPages() {
        const fs::path folder = course_.root / coursetool::kPagesFolder;
        std::error_code error;
        if (!fs::is_directory(folder, error)) {
            report_.fault({shown(folder)}, "le dossier des pages manque");
            return;
        }
        if (!coursetool::isFolderOf(course_.root, folder, report_))
            return;
        for (const fs::path& path :
             sourcesIn(folder, course_.root, coursetool::kPageEnding, report_)) {
            if (isMarkdown(path)) {
                readMarkdownPage(path);
                continue;
            }
            auto file = readFile(path, coursetool::coursTable(), report_);
            if (!file)
                continue;
            Page page;
            page.record = record(*std::move(file), coursetool::coursTable());
            page.source = sourceOf(Source::Kind::Page, file->body.value_or(std::string_view()),
                                   file->file, file->bodyLine);
            course_.pages.push_back(std::move(page));
        }
    }

    void readMarkdownPage(const fs::path& path) {
        auto compiled = coursetool::compileMarkdownPage(path, compiler_, report_);
        if (!compiled)
            return;
        course_.descriptions.take(compiled->descriptions, path, report_);
        Page page;
        if (compiled->text)
            page.source = compiledSource(Source::Kind::Page, *compiled->text, shown(path));
        page.record =
            record(compiledFile(path, std::move(compiled->fields)), coursetool::coursTable());
        course_.pages.push_back(std::move(page));
    }

    void readMarkdownQuestion(const fs::path& path) {
        auto compiled = coursetool::compileMarkdownQuestion(path, compiler_, report_);
        if (!compiled)
            return;
        course_.descriptions.take(compiled->descriptions, path, report_);
        Question question;
        if (compiled->text)
            question.source = compiledSource(Source::Kind::Question, *compiled->text, shown(path));
        if (compiled->siFaux)
            question.comment =
                compiledSource(Source::Kind::Comment, *compiled->siFaux, shown(path));
        question.record =
            record(compiledFile(path, std::move(compiled->fields)), coursetool::contenuTable());
        course_.questions.push_back(std::move(question));
    }

    /// The fields are those that compiling gave; what is to be silent stands beside them.
    SourceFile compiledFile(const fs::path& path, coursetool::Fields fields) {
        SourceFile file{shown(path), std::move(fields), {}, {}, 0, {}};
        Report told; // by the compiler already
        if (const auto source = coursetool::readSource(path, told))
            if (const auto parts = coursetool::splitFrontMatter(*source, file.file, told))
                file.ignored = ignoredIn(parts->frontMatter, 2, file.file, report_);
        return file;
    }

    void readExercises() {
        const fs::path folder = course_.root / coursetool::kExercisesFolder;
        std::error_code error;
        if (!fs::exists(folder, error) || !coursetool::isFolderOf(course_.root, folder, report_))
            return;
        for (const fs::directory_entry& entry : coursetool::entriesOf(folder, report_))
            if (entry.is_directory(error) &&
                coursetool::isFolderOf(course_.root, entry.path(), report_))
                readTest(entry.path());
    }

    void readTest(const fs::path& folder) {
        std::error_code error;
        const fs::directory_entry chapter(folder / coursetool::kChapterFile, error);
        if (!chapter.exists(error))
            report_.fault({shown(chapter.path())}, "le fichier manque : y écrire Chapitre, Titre "
                                                   "et Nbquest du test");
        else if (coursetool::isFileOf(course_.root, chapter, report_))
            readChapter(chapter.path());
        for (const fs::path& path :
             sourcesIn(folder, course_.root, coursetool::kQuestionEnding, report_))
            readQuestion(path);
    }

    void readChapter(const fs::path& path) {
        auto source = coursetool::readSource(path, report_);
        if (!source)
            return;
        SourceFile file{shown(path), {}, {}, *std::move(source), 0, {}};
        const coursetool::TableRule& table = coursetool::descriptionTable();
        file.fields = coursetool::readFields(file.source, 1, file.file,
                                             coursetool::frontMatterFields(table), report_);
        file.ignored = ignoredIn(file.source, 1, file.file, report_);
        course_.tests.push_back(record(std::move(file), table));
    }

    void readQuestion(const fs::path& path) {
        if (isMarkdown(path))
            return readMarkdownQuestion(path);
        auto file = readFile(path, coursetool::contenuTable(), report_);
        if (!file)
            return;
        Question question;
        question.record = record(*std::move(file), coursetool::contenuTable());
        const std::string_view body = file->body.value_or(std::string_view());
        const auto texts = coursetool::splitQuestion(body, file->bodyLine, file->file, report_);
        question.source =
            sourceOf(Source::Kind::Question, texts.question, file->file, file->bodyLine);
        if (texts.siFaux) {
            const auto before = body.substr(0, body.size() - texts.siFaux->size());
            const auto lines = std::count(before.begin(), before.end(), '\n');
            question.comment = sourceOf(Source::Kind::Comment, *texts.siFaux, file->file,
                                        file->bodyLine + static_cast<int>(lines));
        }
        course_.questions.push_back(std::move(question));
    }

    static Record record(SourceFile&& file, const coursetool::TableRule& table) {
        Place place = file.fields.places.front().line > 0 ? file.fields.places.front()
                                                          : Place{file.file, 1, 1};
        Record record(table, std::move(file.fields), std::move(place), {});
        record.ignored = std::move(file.ignored);
        return record;
    }

    authoring::MarkdownCompiler compiler_;
    Report& report_;
    Course course_;
};

/// A name in a directory, in any letter case; empty when nothing has it.
fs::path findIn(const fs::path& directory, const char* name) {
    Report nobody;
    coursetool::NameTable names;
    for (const fs::directory_entry& entry : coursetool::entriesOf(directory, nobody))
        if (files::isFileWithin(entry.path(), directory))
            names.add(entry.path().filename());
    const auto found = names.find(name);
    return found ? directory / *found : fs::path();
}

class InstallationReader {
public:
    InstallationReader(const fs::path& directory, Report& report) : report_(report) {
        course_.root = directory;
        course_.isInstalled = true;
        course_.filesFolder = directory;
        course_.discFolder = directory / coursetool::kDiscFolder;
    }

    Course read() {
        course_.ignored = ignoredInCourse(course_.root, report_);
        course_.descriptions.read(course_.filesFolder, report_);
        const fs::path cours = findIn(course_.root, coursetool::kCourseFile);
        course_.pagesPlace = shown(cours);
        forEachRecord(cours, coursetool::coursTable(), "page ",
                      [&](Record record, const std::vector<jet::Value>& values) {
                          Page page;
                          page.source = source(Source::Kind::Page, values.back(), cours, record);
                          page.record = std::move(record);
                          course_.pages.push_back(std::move(page));
                      });
        readExercises(findIn(course_.root, coursetool::kExerciseFile));
        course_.indexPages();
        return std::move(course_);
    }

private:
    void readExercises(const fs::path& file) {
        if (file.empty())
            return; // a course need not have tests
        forEachRecord(file, coursetool::descriptionTable(), "test ",
                      [&](Record record, const std::vector<jet::Value>&) {
                          course_.tests.push_back(std::move(record));
                      });
        forEachRecord(file, coursetool::contenuTable(), "question ",
                      [&](Record record, const std::vector<jet::Value>& values) {
                          Question question;
                          question.source = source(Source::Kind::Question,
                                                   values[values.size() - 2], file, record);
                          question.comment =
                              source(Source::Kind::Comment, values.back(), file, record);
                          question.record = std::move(record);
                          course_.questions.push_back(std::move(question));
                      });
    }

    template <class Take>
    void forEachRecord(const fs::path& file, const coursetool::TableRule& table, const char* kind,
                       Take take) {
        auto database = jet::openDatabase(file);
        if (!database) {
            report_.fault({shown(file)}, database.error().sentence);
            return;
        }
        coursetool::reportProblems(database->problems(), file, report_);
        // Columns are another course's business; a table that is not there has no records.
        Report columns;
        coursetool::TableSource records(*database, file, table, columns);
        const std::size_t told = columns.remarks().size();
        records.forEach([&](coursetool::SourceRecord& source) {
            const auto key = source.values.front().integer();
            const std::string name =
                kind + (key ? std::to_string(*key)
                            : "sans numéro, enregistrement " + std::to_string(source.position + 1));
            const std::vector<jet::Value> values = source.values;
            take(Record(table, {std::move(source.values), {}}, {shown(file)}, name), values);
        });
        for (std::size_t i = told; i < columns.remarks().size(); ++i)
            report_.fault(columns.remarks()[i].place, columns.remarks()[i].sentence);
    }

    static Source source(Source::Kind kind, const jet::Value& value, const fs::path& file,
                         const Record& record) {
        const std::u16string* text = value.text();
        return {kind,
                text ? QString::fromStdU16String(*text) : QString(),
                {shown(file), 1, 1},
                record.name() + (kind == Source::Kind::Comment ? ", SiFaux" : ""),
                false};
    }

    Report& report_;
    Course course_;
};

} // namespace

bool isInstalledCourse(const fs::path& directory) {
    return !findIn(directory, coursetool::kCourseFile).empty();
}

Course readSources(const fs::path& directory, const page::TextMetrics& metrics, Report& report) {
    return SourceReader(directory, metrics, report).read();
}

Course readInstallation(const fs::path& directory, Report& report) {
    return InstallationReader(directory, report).read();
}

} // namespace check
