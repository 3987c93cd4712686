#include "coursetool/course_builder.h"

#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "text/utf8.h"

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Highest number that a page code holds: codes have three digits.
constexpr int kHighestCode = 999;
/// Highest record position that the index of the pages holds: its entries have 16 bits.
constexpr int kHighestPosition = 32767;
/// Numbers warned about one by one; a course beyond these does not want to hear of each.
constexpr int kNumberWarnings = 20;

jet::Value memo(std::optional<std::string_view> sourceText) {
    if (!sourceText)
        return {};
    return text::toUtf16(toDatabaseText(*sourceText));
}

std::optional<std::string_view> sourceOf(const std::optional<authoring::CompiledText>& text) {
    return text ? std::optional<std::string_view>(text->source) : std::nullopt;
}

Place placeOf(const Fields& fields, const fs::path& file) {
    return fields.places.front().line > 0 ? fields.places.front() : Place{shown(file), 1, 1};
}

} // namespace

CourseBuilder::CourseBuilder(const fs::path& source, StagedCourse& course, const fs::path& output,
                             const CompilerSource& compiler, Report& report)
    : source_(source), output_(output), course_(course), compiler_(compiler), report_(report),
      courseDatabase_(course.pathFor(kCourseFile), shown(output / kCourseFile), report),
      exerciseDatabase_(course.pathFor(kExerciseFile), shown(output / kExerciseFile), report),
      cours_(courseDatabase_, coursTable(), report),
      description_(exerciseDatabase_, descriptionTable(), report),
      contenu_(exerciseDatabase_, contenuTable(), report),
      pageNumbers_(coursTable().fields.front()), chapters_(descriptionTable().fields.front()),
      references_(contenuTable().fields.front()) {}

void CourseBuilder::compilePages() {
    descriptions_.read(source_ / kFilesFolder, report_);
    const fs::path folder = source_ / kPagesFolder;
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        report_.fault({shown(folder)}, "le dossier des pages manque : y mettre un fichier .page "
                                       "par page");
        return;
    }
    if (!isFolderOf(source_, folder, report_))
        return;
    const auto files = sourcesIn(folder, source_, kPageEnding, "", report_);
    for (std::size_t i = 0; i < files.size(); ++i) {
        compilePage(files[i]);
        report_.progress("pages compilées", i + 1, files.size());
    }
    if (cours_.count() == 0)
        report_.warning({shown(folder)}, "aucune page : le cours sera vide");
    if (numberWarnings_ > kNumberWarnings)
        report_.warning({shown(folder)}, "et " + std::to_string(numberWarnings_ - kNumberWarnings) +
                                             " autres numéros au-delà de 999");
}

void CourseBuilder::compilePage(const fs::path& file) {
    if (isMarkdown(file))
        return compileMarkdownPage(file);
    const auto source = readSource(file, report_);
    const auto parts = source ? splitFrontMatter(*source, shown(file), report_) : std::nullopt;
    if (!parts)
        return;
    Fields fields =
        readFields(parts->frontMatter, 2, shown(file), frontMatterFields(coursTable()), report_);
    const Place place = placeOf(fields, file);
    fields.values.push_back(memo(parts->body));
    appendPage(std::move(fields), place);
}

void CourseBuilder::appendPage(Fields fields, const Place& place) {
    pageNumbers_.take(fields.values.front(), place, report_);
    warnAboutNumber(fields);
    cours_.append(fields.values, place);
    if (cours_.count() == kHighestPosition + 2)
        report_.warning(place, "au-delà de 32 768 pages, l’index ne retient plus les positions : "
                               "cette page et les suivantes restent hors d’atteinte");
}

void CourseBuilder::warnAboutNumber(const Fields& fields) {
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

void CourseBuilder::compileExercises() {
    const fs::path folder = source_ / kExercisesFolder;
    std::error_code error;
    if (!fs::exists(folder, error))
        return; // a course without tests: the tables are there and empty
    if (!isFolderOf(source_, folder, report_))
        return;
    for (const fs::directory_entry& entry : entriesOf(folder, report_)) {
        if (isFolderOf(source_, entry.path(), report_))
            compileTest(entry.path());
        else if (!entry.is_directory(error) && !shown(entry.path().filename()).starts_with('.'))
            report_.warning({shown(entry.path())},
                            "laissé de côté : les questions sont dans un dossier par test");
    }
}

void CourseBuilder::compileTest(const fs::path& folder) {
    compileChapter(folder / kChapterFile);
    for (const fs::path& file : sourcesIn(folder, source_, kQuestionEnding, kChapterFile, report_))
        compileQuestion(file);
}

void CourseBuilder::compileChapter(const fs::path& file) {
    std::error_code error;
    const fs::directory_entry entry(file, error);
    if (!entry.exists(error)) {
        report_.fault({shown(file)},
                      "le fichier manque : y écrire Chapitre, Titre et Nbquest du test");
        return;
    }
    const auto source =
        isFileOf(source_, entry, report_) ? readSource(file, report_) : std::nullopt;
    if (!source)
        return;
    const Fields fields =
        readFields(*source, 1, shown(file), frontMatterFields(descriptionTable()), report_);
    chapters_.take(fields.values.front(), placeOf(fields, file), report_);
    description_.append(fields.values, placeOf(fields, file));
}

const authoring::Compiler* CourseBuilder::compilerFor(const fs::path& file) {
    // Asked once: a compiler that is missing is one fault, not one a file.
    if (!askedForCompiler_) {
        askedForCompiler_ = true;
        markdown_ = compiler_ ? compiler_() : nullptr;
        if (!compiler_)
            report_.fault({shown(file)}, "ici, le Markdown n’est pas lu");
    }
    return markdown_;
}

void CourseBuilder::compileMarkdownPage(const fs::path& file) {
    const auto* const compiler = compilerFor(file);
    auto page = compiler ? coursetool::compileMarkdownPage(file, *compiler, report_) : std::nullopt;
    if (!page)
        return;
    descriptions_.take(page->descriptions, file, report_);
    const Place place = placeOf(page->fields, file);
    page->fields.values.push_back(memo(sourceOf(page->text)));
    appendPage(std::move(page->fields), place);
}

void CourseBuilder::compileMarkdownQuestion(const fs::path& file) {
    const auto* const compiler = compilerFor(file);
    auto question =
        compiler ? coursetool::compileMarkdownQuestion(file, *compiler, report_) : std::nullopt;
    if (!question)
        return;
    descriptions_.take(question->descriptions, file, report_);
    Fields& fields = question->fields;
    const Place place = placeOf(fields, file);
    references_.take(fields.values.front(), place, report_);
    fields.values.push_back(memo(sourceOf(question->text)));
    fields.values.push_back(memo(sourceOf(question->siFaux)));
    contenu_.append(fields.values, place);
}

void CourseBuilder::compileQuestion(const fs::path& file) {
    if (isMarkdown(file))
        return compileMarkdownQuestion(file);
    const auto source = readSource(file, report_);
    const auto parts = source ? splitFrontMatter(*source, shown(file), report_) : std::nullopt;
    if (!parts)
        return;
    Fields fields =
        readFields(parts->frontMatter, 2, shown(file), frontMatterFields(contenuTable()), report_);
    references_.take(fields.values.front(), placeOf(fields, file), report_);
    if (parts->body) {
        const QuestionParts texts =
            splitQuestion(*parts->body, parts->bodyLine, shown(file), report_);
        fields.values.push_back(memo(texts.question));
        fields.values.push_back(memo(texts.siFaux));
    } else {
        fields.values.resize(contenuTable().fields.size());
    }
    contenu_.append(fields.values, placeOf(fields, file));
}

void CourseBuilder::checkFiles() {
    const auto list = [&](const char* folder) {
        std::error_code error;
        const fs::path path = source_ / folder;
        return fs::exists(path, error) && isFolderOf(source_, path, report_)
                   ? listTree(path, source_, report_)
                   : FileTree();
    };
    files_ = list(kFilesFolder);
    disc_ = list(kDiscFolder);
    NameTable reserved;
    for (const char* name : {kCourseFile, kExerciseFile, kDiscFolder, files::Publication::kFolder})
        reserved.add(name);
    checkNames(source_ / kFilesFolder, files_, reserved);
    checkNames(source_ / kDiscFolder, disc_, {});
}

void CourseBuilder::checkNames(const fs::path& root, const FileTree& tree,
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

void CourseBuilder::copyFiles() {
    copyTree(source_ / kFilesFolder, files_, {});
    copyTree(source_ / kDiscFolder, disc_, kDiscFolder);
}

void CourseBuilder::copyTree(const fs::path& from, const FileTree& tree, const fs::path& to) {
    for (const fs::path& path : tree.directories)
        course_.addDirectory(to / path);
    for (const fs::path& path : tree.files) {
        if (to.empty() && path == descriptions_.name())
            continue; // written with what the pages add to it
        std::error_code error;
        fs::copy_file(from / path, course_.pathFor(to / path), error);
        if (error)
            report_.failure({shown(from / path)},
                            "le fichier ne peut pas être copié : " + files::causeOf(error));
        course_.add(to / path);
    }
}

void CourseBuilder::writeDescriptions() {
    std::error_code error;
    // One that the course had before would tell of other pictures.
    if (descriptions_.isEmpty() && !fs::exists(output_ / descriptions_.name(), error))
        return;
    files::WholeFile file(course_.pathFor(descriptions_.name()));
    file.write(descriptions_.file());
    if (!file.putInPlace())
        report_.failure(output_ / descriptions_.name(), files::kFileNotWritten, file.error());
    course_.add(descriptions_.name());
}

void CourseBuilder::finishDatabases() {
    writeDescriptions();
    exerciseDatabase_.finish();
    courseDatabase_.finish();
    // Last, so that whoever reads the new pages finds what they name.
    course_.add(kExerciseFile);
    course_.add(kCourseFile);
}

} // namespace coursetool
