#include "coursetool/course_sources.h"

#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/tables.h"
#include "files/publication.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Highest number that a page code holds: codes have three digits.
constexpr int kHighestCode = 999;
/// Highest record position that the index of the pages holds: its entries have 16 bits.
constexpr int kHighestPosition = 32767;
/// Numbers warned about one by one; a course beyond these does not want to hear of each.
constexpr int kNumberWarnings = 20;

} // namespace

CourseSources::CourseSources(fs::path folder, SourceReader& reader, RecordSink& records,
                             Report& report)
    : folder_(std::move(folder)), reader_(reader), records_(records), report_(report),
      pageNumbers_(coursTable().fields.front()), chapters_(descriptionTable().fields.front()),
      references_(contenuTable().fields.front()) {}

void CourseSources::readPages() {
    descriptions_.read(folder_ / kFilesFolder, report_);
    const fs::path folder = folder_ / kPagesFolder;
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        report_.fault({shown(folder)}, "le dossier des pages manque : y mettre un fichier .page "
                                       "par page");
        return;
    }
    if (!isFolderOf(folder_, folder, report_))
        return;
    const auto files = sourcesIn(folder, folder_, kPageEnding, "", report_);
    for (std::size_t i = 0; i < files.size(); ++i) {
        readPage(files[i]);
        report_.progress("pages compilées", i + 1, files.size());
    }
    if (pages_ == 0)
        report_.warning({shown(folder)}, "aucune page : le cours sera vide");
    if (numberWarnings_ > kNumberWarnings)
        report_.warning({shown(folder)}, "et " + std::to_string(numberWarnings_ - kNumberWarnings) +
                                             " autres numéros au-delà de 999");
}

void CourseSources::readPage(const fs::path& file) {
    const auto page = reader_.read(SourceKind::Page, file, report_);
    if (!page)
        return;
    pageNumbers_.take(page->fields.values.front(), page->place, report_);
    warnAboutNumber(page->fields);
    descriptions_.take(page->descriptions, file, report_);
    records_.take(SourceKind::Page, page);
    if (++pages_ == kHighestPosition + 2)
        report_.warning(page->place,
                        "au-delà de 32 768 pages, l’index ne retient plus les positions : "
                        "cette page et les suivantes restent hors d’atteinte");
}

void CourseSources::warnAboutNumber(const Fields& fields) {
    const auto number = fields.values.front().integer();
    if (!number || (*number >= 0 && *number <= kHighestCode))
        return;
    if (++numberWarnings_ > kNumberWarnings)
        return;
    report_.warning(fields.places.front(),
                    *number < 0
                        ? "un numéro de page négatif : aucun code ne mène à cette page"
                        : "un numéro de page au-delà de 999 : un code n’en garde que les trois "
                          "derniers chiffres et mène ailleurs");
}

void CourseSources::readTests() {
    const fs::path folder = folder_ / kExercisesFolder;
    std::error_code error;
    if (!fs::exists(folder, error))
        return; // a course without tests: the tables are there and empty
    if (!isFolderOf(folder_, folder, report_))
        return;
    for (const fs::directory_entry& entry : entriesOf(folder, report_)) {
        if (isFolderOf(folder_, entry.path(), report_))
            readTest(entry.path());
        else if (!entry.is_directory(error) && !shown(entry.path().filename()).starts_with('.'))
            report_.warning({shown(entry.path())},
                            "laissé de côté : les questions sont dans un dossier par test");
    }
}

void CourseSources::readTest(const fs::path& folder) {
    readChapter(folder / kChapterFile);
    for (const fs::path& file : sourcesIn(folder, folder_, kQuestionEnding, kChapterFile, report_))
        readQuestion(file);
}

void CourseSources::readChapter(const fs::path& file) {
    std::error_code error;
    const fs::directory_entry entry(file, error);
    if (!entry.exists(error)) {
        report_.fault({shown(file)},
                      "le fichier manque : y écrire Chapitre, Titre et Nbquest du test");
        return;
    }
    const auto test =
        isFileOf(folder_, entry, report_) ? reader_.read(SourceKind::Test, file, report_) : nullptr;
    if (!test)
        return;
    chapters_.take(test->fields.values.front(), test->place, report_);
    records_.take(SourceKind::Test, test);
}

void CourseSources::readQuestion(const fs::path& file) {
    const auto question = reader_.read(SourceKind::Question, file, report_);
    if (!question)
        return;
    references_.take(question->fields.values.front(), question->place, report_);
    descriptions_.take(question->descriptions, file, report_);
    records_.take(SourceKind::Question, question);
}

void CourseSources::listFiles() {
    const auto list = [&](const char* folder) {
        std::error_code error;
        const fs::path path = folder_ / folder;
        return fs::exists(path, error) && isFolderOf(folder_, path, report_)
                   ? listTree(path, folder_, report_)
                   : FileTree();
    };
    files_ = list(kFilesFolder);
    disc_ = list(kDiscFolder);
    NameTable reserved;
    for (const char* name : {kCourseFile, kExerciseFile, kDiscFolder, files::Publication::kFolder})
        reserved.add(name);
    checkNames(folder_ / kFilesFolder, files_, reserved);
    checkNames(folder_ / kDiscFolder, disc_, {});
}

void CourseSources::checkNames(const fs::path& root, const FileTree& tree,
                               const NameTable& reserved) {
    NameTable names;
    const auto take = [&](const fs::path& path) {
        if (reserved.find(path))
            report_.fault({shown(root / path)},
                          "ce nom est celui d’une partie du cours : renommer le fichier");
        else if (const auto other = names.find(path))
            report_.fault({shown(root / path)}, "même nom que " + inQuotes(shown(*other)) +
                                                    ", à la casse près : en renommer un");
        else
            names.add(path);
    };
    for (const fs::path& path : tree.directories)
        take(path);
    for (const fs::path& path : tree.files)
        take(path);
}

} // namespace coursetool
