#include "check/read_course.h"

#include "check/silences.h"
#include "coursetool/dump.h"
#include "coursetool/file_list.h"
#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/table_source.h"
#include "files/within.h"
#include "jet/database_file.h"

namespace check {

namespace fs = std::filesystem;
using coursetool::ReadSource;
using coursetool::Report;
using coursetool::shown;
using coursetool::SourceKind;

namespace {

/// The files of a folder with this ending, and those in Markdown, in record order. What else stands
/// there is the build's business.
std::vector<fs::path> sourcesIn(const fs::path& folder, const fs::path& top,
                                std::string_view ending, Report& report) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : coursetool::entriesOf(folder, report)) {
        std::error_code error;
        if ((shown(entry.path()).ends_with(ending) || coursetool::isMarkdown(entry.path())) &&
            entry.is_regular_file(error) && coursetool::isFileOf(top, entry, report))
            files.push_back(entry.path());
    }
    return files;
}

/// A text of a record, as the database will have it; its findings name the lines of the file. What
/// was compiled is not the author's to mend.
Source sourceOf(Source::Kind kind, const ReadSource& read, const coursetool::TextPlace& place,
                const jet::Value& value) {
    const std::u16string* const text = value.text();
    if (!text && kind == Source::Kind::Comment)
        return {};
    const bool isWritten = place.markdownLines.empty();
    Source source{kind,
                  text ? QString::fromStdU16String(*text) : QString(),
                  {read.file, isWritten ? place.firstLine : 1, 1},
                  {},
                  isWritten};
    if (isWritten)
        return source;
    std::vector<int> lines;
    // The last is that of what stands after the last line end.
    for (int line = 1; line <= static_cast<int>(source.lines().size()) + 1; ++line)
        lines.push_back(place.lineOf(line));
    source.setFileLines(std::move(lines));
    return source;
}

Record recordOf(const ReadSource& read, const coursetool::TableRule& table, Report& report) {
    Record record(table, read.fields, read.place, {});
    record.ignored = ignoredIn(read.frontMatter, read.frontMatterLine, read.file, report);
    return record;
}

} // namespace

Page pageOf(const ReadSource& read, Report& report) {
    return {recordOf(read, coursetool::coursTable(), report),
            sourceOf(Source::Kind::Page, read, read.text, read.fields.values.back())};
}

Record testOf(const ReadSource& read, Report& report) {
    return recordOf(read, coursetool::descriptionTable(), report);
}

Question questionOf(const ReadSource& read, Report& report) {
    const std::vector<jet::Value>& values = read.fields.values;
    return {recordOf(read, coursetool::contenuTable(), report),
            sourceOf(Source::Kind::Question, read, read.text, values[values.size() - 2]),
            sourceOf(Source::Kind::Comment, read, read.comment, values.back())};
}

namespace {

class SourcesReader {
public:
    SourcesReader(const fs::path& directory, coursetool::SourceReader& reader, Report& report)
        : reader_(reader), report_(report) {
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
        for (const fs::path& file :
             sourcesIn(folder, course_.root, coursetool::kPageEnding, report_))
            if (const auto read = reader_.read(SourceKind::Page, file, report_)) {
                course_.pages.push_back(pageOf(*read, report_));
                course_.descriptions.take(read->descriptions, file, report_);
            }
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
            if (const auto read = reader_.read(SourceKind::Test, chapter.path(), report_))
                course_.tests.push_back(testOf(*read, report_));
        for (const fs::path& file :
             sourcesIn(folder, course_.root, coursetool::kQuestionEnding, report_))
            if (const auto read = reader_.read(SourceKind::Question, file, report_)) {
                course_.questions.push_back(questionOf(*read, report_));
                course_.descriptions.take(read->descriptions, file, report_);
            }
    }

    coursetool::SourceReader& reader_;
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

Course readSources(const fs::path& directory, coursetool::SourceReader& reader, Report& report) {
    return SourcesReader(directory, reader, report).read();
}

Course readInstallation(const fs::path& directory, Report& report) {
    return InstallationReader(directory, report).read();
}

} // namespace check
