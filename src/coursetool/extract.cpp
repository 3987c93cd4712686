#include "coursetool/extract.h"

#include "coursedata/question_reference.h"
#include "coursetool/dump.h"
#include "coursetool/file_list.h"
#include "coursetool/installed_course.h"
#include "coursetool/paths.h"
#include "coursetool/question_folders.h"
#include "coursetool/source_writer.h"
#include "coursetool/table_source.h"
#include "coursetool/tables.h"
#include "files/cause.h"
#include "files/copy_file.h"
#include "files/publication.h"
#include "files/within.h"
#include "jet/database_file.h"
#include "jet/names.h"
#include "text/utf8.h"

#include <unordered_map>
#include <unordered_set>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// `number` with leading zeros, so that names of `count` files stand in the order of their numbers.
std::string ordinal(std::size_t number, std::size_t count) {
    const std::string digits = std::to_string(number);
    const std::size_t width = std::to_string(count).size();
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// "007-12" for the seventh record, whose key is 12; "007" when it has none.
std::string recordName(const SourceRecord& record, std::size_t count) {
    const auto key = record.values.front().integer();
    return ordinal(record.position + 1, count) + (key ? '-' + std::to_string(*key) : "");
}

/// Reports keys that occur twice: `build` refuses them.
class KeyCheck {
public:
    explicit KeyCheck(Report& report) : report_(report) {}

    void take(const SourceRecord& record) {
        const auto key = record.values.front().integer();
        if (key && !seen_.insert(*key).second)
            report_.fault(record.place, "le numéro " + std::to_string(*key) +
                                            " est en double : build le refusera");
    }

private:
    Report& report_;
    std::unordered_set<std::int32_t> seen_;
};

class CourseExtractor {
public:
    CourseExtractor(const fs::path& course, const fs::path& output, Report& report)
        : course_(course), output_(output), report_(report), writer_(report) {}

    void run() {
        const FileTree tree = listTree(course_, course_, report_);
        const auto courseFile = findDatabase(course_, kCourseFile, report_);
        if (!courseFile || !makeDirectory(output_ / kPagesFolder))
            return;
        extractPages(*courseFile);
        const auto exerciseFile = coursedata::findDatabase(course_, kExerciseFile);
        if (exerciseFile) // a course need not have tests
            extractExercises(*exerciseFile);
        copyFiles(tree, courseFile->filename(),
                  exerciseFile ? exerciseFile->filename() : fs::path());
        tellStrangers(kPagesFolder);
        tellStrangers(kExercisesFolder);
    }

private:
    /// Whether writing there stays in the sources; a failure when not.
    bool isOwn(const fs::path& path) {
        if (files::isFreeOfLinks(path, output_))
            return true;
        report_.failure({shown(path)}, "un lien mène ailleurs : rien n’y est écrit");
        return false;
    }

    bool makeDirectory(const fs::path& path) {
        if (path != output_ && !isOwn(path))
            return false;
        std::error_code error;
        fs::create_directories(path, error);
        if (error)
            report_.failure(path, files::kFolderNotCreated, error);
        return !error;
    }

    std::optional<jet::Database> open(const fs::path& file) {
        auto database = jet::openDatabase(file);
        if (!database) {
            report_.fault({shown(file)}, database.error().sentence);
            return std::nullopt;
        }
        reportProblems(database->problems(), file, report_);
        return *std::move(database);
    }

    void tellOtherTables(const jet::Database& database, const fs::path& file,
                         std::initializer_list<std::string_view> known) {
        for (const jet::TableInfo& info : database.tables()) {
            const auto same = [&](std::string_view name) {
                return jet::sameName(info.name, text::toUtf16(name));
            };
            if (std::none_of(known.begin(), known.end(), same))
                report_.fault({shown(file)},
                              "table " + inQuotes(text::toUtf8(info.name)) +
                                  " non reprise : les sources n’en ont pas la place");
        }
    }

    void extractPages(const fs::path& file) {
        const auto database = open(file);
        if (!database)
            return;
        tellOtherTables(*database, file, {coursTable().name});
        TableSource cours(*database, file, coursTable(), report_);
        const std::size_t count = cours.recordCount();
        KeyCheck numbers(report_);
        cours.forEach([&](SourceRecord& record) {
            numbers.take(record);
            const fs::path source =
                output_ / kPagesFolder / (recordName(record, count) + kPageEnding);
            if (take(source))
                writer_.writePage(record, source);
            report_.progress("pages reprises", record.position + 1, count);
        });
    }

    void extractExercises(const fs::path& file) {
        const auto database = open(file);
        if (!database)
            return;
        tellOtherTables(*database, file, {descriptionTable().name, contenuTable().name});
        extractChapters(*database, file);
        extractQuestions(*database, file);
    }

    void extractChapters(const jet::Database& database, const fs::path& file) {
        TableSource description(database, file, descriptionTable(), report_);
        const std::size_t count = description.recordCount();
        KeyCheck chapters(report_);
        description.forEach([&](SourceRecord& record) {
            chapters.take(record);
            if (const auto chapter = record.values.front().integer())
                folderOfChapter_.try_emplace(*chapter, folders_.size());
            folders_.push_back(output_ / kExercisesFolder / recordName(record, count));
            if (makeDirectory(folders_.back()) && take(folders_.back() / kChapterFile))
                writer_.writeChapter(record, folders_.back() / kChapterFile);
        });
    }

    void extractQuestions(const jet::Database& database, const fs::path& file) {
        TableSource contenu(database, file, contenuTable(), report_);
        const std::size_t count = contenu.recordCount();
        std::vector<std::optional<std::size_t>> own;
        contenu.forEach([&](SourceRecord& record) { own.push_back(folderOf(record)); });
        if (count > 0 && folders_.empty())
            makeFolderWithoutTest(file);
        const std::vector<std::size_t> folders = shareOut(own);
        KeyCheck references(report_);
        std::size_t next = 0;
        contenu.forEach([&](SourceRecord& record) {
            references.take(record);
            const std::size_t folder = next < folders.size() ? folders[next++] : 0;
            const fs::path source =
                folders_[folder] / (recordName(record, count) + kQuestionEnding);
            if (take(source))
                writer_.writeQuestion(record, source);
        });
    }

    std::optional<std::size_t> folderOf(const SourceRecord& record) const {
        const auto reference = record.values.front().integer();
        if (!reference)
            return std::nullopt;
        const auto found = folderOfChapter_.find(*reference / coursedata::kReferencesPerChapter);
        return found != folderOfChapter_.end() ? std::optional(found->second) : std::nullopt;
    }

    void makeFolderWithoutTest(const fs::path& file) {
        report_.fault({shown(file)}, "DESCRIPTION est vide : build demandera un chapter.toml pour "
                                     "les questions");
        folders_.push_back(output_ / kExercisesFolder / "sans-test");
        makeDirectory(folders_.back());
    }

    void copyFiles(const FileTree& tree, const fs::path& courseFile, const fs::path& exerciseFile) {
        for (const fs::path& directory : tree.directories)
            if (!isStaging(directory))
                makeDirectory(placeOf(directory));
        for (const fs::path& file : tree.files)
            if (file != courseFile && file != exerciseFile && !isStaging(file))
                copy(file);
    }

    /// Whether the source may be written; it is one of those that do not surprise, then.
    bool take(const fs::path& source) {
        written_.insert(source.lexically_normal().string());
        return isOwn(source);
    }

    /// Warns of what stands among the sources and comes from elsewhere.
    void tellStrangers(const char* folder) {
        std::error_code error;
        for (fs::recursive_directory_iterator entry(output_ / folder, error), end;
             !error && entry != end; entry.increment(error))
            if (!entry->is_directory() &&
                !written_.contains(entry->path().lexically_normal().string()))
                report_.warning({shown(entry->path())},
                                "n’est pas du cours repris, et build le prendra avec lui");
    }

    static bool isStaging(const fs::path& path) {
        return *path.begin() == files::Publication::kFolder;
    }

    /// Disc directories stand beside the files in the sources, among them in the course.
    fs::path placeOf(const fs::path& relative) const {
        const bool onDisc = *relative.begin() == kDiscFolder;
        return onDisc ? output_ / relative : output_ / kFilesFolder / relative;
    }

    void copy(const fs::path& file) {
        std::error_code error;
        const fs::path to = placeOf(file);
        if (!isOwn(to))
            return;
        fs::create_directories(to.parent_path(), error);
        error = files::copyFile(course_ / file, to);
        if (error)
            report_.failure(course_ / file, "le fichier ne peut pas être copié", error);
    }

    fs::path course_;
    fs::path output_;
    Report& report_;
    SourceWriter writer_;
    std::vector<fs::path> folders_;
    std::unordered_set<std::string> written_;
    std::unordered_map<std::int32_t, std::size_t> folderOfChapter_;
};

} // namespace

void extract(const fs::path& course, const fs::path& output, Report& report) {
    CourseExtractor(course, output, report).run();
}

} // namespace coursetool
