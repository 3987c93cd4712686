#include "coursetool/course_addition.h"

#include "coursedata/question_reference.h"
#include "coursetool/field_value.h"
#include "coursetool/file_list.h"
#include "coursetool/front_matter.h"
#include "coursetool/front_matter_edit.h"
#include "coursetool/paths.h"
#include "coursetool/source_files.h"
#include "coursetool/source_parts.h"
#include "coursetool/source_text.h"
#include "coursetool/source_writer.h"
#include "coursetool/toml_text.h"
#include "files/cause.h"
#include "text/letters.h"
#include "text/utf8.h"

#include <algorithm>
#include <optional>
#include <set>

namespace coursetool {

namespace fs = std::filesystem;

namespace {

/// Highest number of a page or a chapter: codes have three digits.
constexpr int kHighestCode = 999;
/// Longest part of a title that names a file.
constexpr std::size_t kNameLength = 40;

// Places of the fields in their tables.
constexpr std::size_t kIndex = 1;
constexpr std::size_t kSuite = 4;
constexpr std::size_t kSommaire = 9;
constexpr std::size_t kNbquest = 2;

/// A source with its fields.
struct Source {
    fs::path file;
    Fields fields;

    std::optional<std::int64_t> number(std::size_t field) const {
        const auto value = fields.values[field].integer();
        return value ? std::optional<std::int64_t>(*value) : std::nullopt;
    }
};

struct Test {
    Source chapter;
    fs::path folder;
    int questions = 0;
};

/// A file name of a title: "masse-et-volume".
std::string nameOf(std::string_view title) {
    std::string name;
    for (const char16_t c : text::toUtf16(title)) {
        const char16_t plain = text::lowerCase(text::withoutAccent(c));
        const bool fits = (plain >= u'a' && plain <= u'z') || (plain >= u'0' && plain <= u'9');
        if (fits)
            name += static_cast<char>(plain);
        else if (!name.empty() && !name.ends_with('-'))
            name += '-';
        if (name.size() == kNameLength)
            break;
    }
    while (name.ends_with('-'))
        name.pop_back();
    return name;
}

/// Words of Markdown that stand for themselves.
std::string plainMarkdown(std::string_view words) {
    std::string text;
    for (const char c : words) {
        if (std::string_view("\\`*_[]<>#$|~&").find(c) != std::string_view::npos)
            text += '\\';
        text += c;
    }
    return text;
}

/// With leading zeros: records are in the order of file names.
std::string threeDigits(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits;
}

class CourseAddition {
public:
    CourseAddition(const fs::path& course, OutputBuffer& out, Report& report)
        : course_(course), out_(out), report_(report), writer_(report) {}

    /// False, and faults, when the fields of the sources are not all known.
    bool read() {
        readPages();
        readTests();
        return !report_.hasFaults();
    }

    void addPage(const std::string& wanted) {
        const auto asNumber = canonicalNumber(wanted);
        const std::int64_t number = asNumber ? *asNumber : freePageNumber();
        const std::string title = asNumber ? "Page " + wanted : wanted;
        if (number < 1 || number > kHighestCode || numbers_.contains(number)) {
            report_.fault({shown(course_ / kPagesFolder)},
                          asNumber ? "la page " + wanted + " est déjà là, ou hors de 1 à 999"
                                   : "les numéros de 1 à 999 sont tous pris");
            return;
        }
        const Source* const before = lastPage();
        const std::int64_t index = before ? *before->number(kIndex) + 1 : 1;
        const auto summary = before ? before->number(kSommaire) : std::nullopt;
        const std::string text = pageText(number, index, title, summary);
        const fs::path file = pageFile(number, title);
        if (!write(file, text, coursTable()))
            return;
        numbers_.insert(number);
        // Without its arrow nothing might lead to the new page.
        if (before && before->fields.values[kSuite].integer().value_or(0) == 0)
            setField(before->file, "suite", "true", 2, coursTable());
        takeBackIfFailed(file);
        pages_.clear();
        readPages();
    }

    void addQuestion(const std::string& wanted) {
        const auto chapter = canonicalNumber(wanted);
        if (!chapter || *chapter < 1 || *chapter > kHighestCode) {
            report_.fault({shown(course_ / kExercisesFolder)},
                          "« --question » attend le numéro d’un chapitre, de 1 à 999, pas " +
                              inQuotes(wanted));
            return;
        }
        Test* const test = testOf(*chapter);
        const auto reference = freeReference(*chapter);
        if (!test || !reference)
            return;
        const std::string text = "+++\nREFERENCE = " + std::to_string(*reference) +
                                 "\n+++\nLa question ?\n\n- [x] la bonne réponse\n- [ ] une autre\n"
                                 "- [ ] une autre encore\n\n## Si c'est faux\n\nPourquoi.\n";
        const fs::path file = test->folder / (std::to_string(*reference) + ".md");
        if (!write(file, text, contenuTable()))
            return;
        references_.insert(*reference);
        // A test of which it was told otherwise is left to its author.
        if (test->chapter.number(kNbquest) == test->questions)
            setField(test->chapter.file, "Nbquest", std::to_string(test->questions + 1), 1,
                     descriptionTable());
        takeBackIfFailed(file);
        readTests();
    }

private:
    std::optional<Source> readFieldsOf(const fs::path& file, const TableRule& table) {
        const auto source = readSource(file, report_);
        const auto parts = source ? splitFrontMatter(*source, shown(file), report_) : std::nullopt;
        if (!parts)
            return std::nullopt;
        return Source{file, readFields(parts->frontMatter, 2, shown(file), frontMatterFields(table),
                                       report_)};
    }

    void readPages() {
        const fs::path folder = course_ / kPagesFolder;
        if (!isFolderOf(course_, folder, report_)) {
            report_.fault({shown(folder)}, "le dossier des pages manque : « orvalente-cours new » "
                                           "sans option écrit un cours neuf");
            return;
        }
        Report warnings; // of other files, which are no business of this call
        for (const fs::path& file : sourcesIn(folder, course_, kPageEnding, "", warnings))
            if (auto page = readFieldsOf(file, coursTable())) {
                if (const auto number = page->number(0))
                    numbers_.insert(*number);
                pages_.push_back(*std::move(page));
            }
    }

    void readTests() {
        tests_.clear();
        const fs::path folder = course_ / kExercisesFolder;
        std::error_code error;
        if (!fs::exists(folder, error) || !isFolderOf(course_, folder, report_))
            return;
        for (const fs::directory_entry& entry : entriesOf(folder, report_))
            if (entry.is_directory(error) && isFolderOf(course_, entry.path(), report_))
                readTest(entry.path());
    }

    void readTest(const fs::path& folder) {
        const fs::path file = folder / kChapterFile;
        std::error_code error;
        const fs::directory_entry entry(file, error);
        const auto source =
            isFileOf(course_, entry, report_) ? readSource(file, report_) : std::nullopt;
        if (!source)
            return;
        Test test{{file, readFields(*source, 1, shown(file), frontMatterFields(descriptionTable()),
                                    report_)},
                  folder};
        Report warnings;
        for (const fs::path& path :
             sourcesIn(folder, course_, kQuestionEnding, kChapterFile, warnings)) {
            ++test.questions;
            if (const auto question = readFieldsOf(path, contenuTable()))
                if (const auto reference = question->number(0))
                    references_.insert(*reference);
        }
        tests_.push_back(std::move(test));
    }

    /// The number after the highest, or a gap when that has no code.
    std::int64_t freePageNumber() const {
        std::int64_t number =
            numbers_.empty() ? 1 : std::max<std::int64_t>(*numbers_.rbegin(), 0) + 1;
        if (number > kHighestCode)
            for (number = 1; numbers_.contains(number);)
                ++number;
        return number;
    }

    /// The last page of the reading order; null when no page has a place in it.
    const Source* lastPage() const {
        const Source* last = nullptr;
        for (const Source& page : pages_)
            if (const auto index = page.number(kIndex);
                index && (!last || *index > *last->number(kIndex)))
                last = &page;
        return last;
    }

    static std::string pageText(std::int64_t number, std::int64_t index, const std::string& title,
                                std::optional<std::int64_t> summary) {
        const std::string own = std::to_string(number);
        std::string text = "+++\nNumeropage = " + own + "\nIndex = " + std::to_string(index) +
                           "\ntitre = " + tomlString(title) +
                           "\nprecedent = " + (index > 1 ? "true" : "false") +
                           "\nsuite = false\nimprimable = true\nmoteur = true\ndebutimp = " + own +
                           "\nfinimp = " + own;
        if (summary)
            text += "\nsommaire = " + std::to_string(*summary);
        return text + "\n+++\n# " + plainMarkdown(title) + "\n\nLe texte de la page.\n";
    }

    /// Never before the first page: the first record is where numbers lead that no page has.
    fs::path pageFile(std::int64_t number, const std::string& title) const {
        std::string name = threeDigits(number);
        if (const std::string words = nameOf(title); !words.empty())
            name += '-' + words;
        name += ".md";
        if (!pages_.empty() && name < shown(pages_.front().file.filename()))
            name.insert(0, shown(pages_.front().file.stem()) + '_');
        return course_ / kPagesFolder / name;
    }

    Test* testOf(std::int64_t chapter) {
        const auto found = std::ranges::find_if(
            tests_, [&](const Test& test) { return test.chapter.number(0) == chapter; });
        if (found != tests_.end())
            return &*found;
        const std::string number = std::to_string(chapter);
        const fs::path folder = course_ / kExercisesFolder / (number + "-test");
        std::error_code error;
        fs::create_directories(folder, error);
        if (error)
            report_.failure(folder, files::kFolderNotCreated, error);
        else if (writeFile(folder / kChapterFile, "Chapitre = " + number + "\nTitre = \"Chapitre " +
                                                      number + "\"\nNbquest = 0\n"))
            readTest(folder);
        return report_.hasFaults() ? nullptr : &tests_.back();
    }

    std::optional<std::int64_t> freeReference(std::int64_t chapter) {
        const std::int64_t base = chapter * coursedata::kReferencesPerChapter;
        std::int64_t reference = base + 1;
        while (references_.contains(reference))
            ++reference;
        if (reference < base + coursedata::kReferencesPerChapter)
            return reference;
        report_.fault({shown(course_ / kExercisesFolder)},
                      "le test du chapitre " + std::to_string(chapter) + " a déjà 99 questions");
        return std::nullopt;
    }

    /// Only when what is to be written reads as its author would have it.
    bool write(const fs::path& file, const std::string& text, const TableRule& table) {
        Report read;
        checkUtf8(text, shown(file), read);
        if (const auto parts = splitFrontMatter(text, shown(file), read))
            readFields(parts->frontMatter, 2, shown(file), frontMatterFields(table), read);
        for (const Remark& remark : read.remarks())
            report_.fault(remark.place, remark.sentence);
        return !read.hasFaults() && writeFile(file, text);
    }

    bool writeFile(const fs::path& file, const std::string& text) {
        std::error_code error;
        if (fs::exists(fs::symlink_status(file, error))) {
            report_.fault({shown(file)}, "ce fichier est déjà là");
            return false;
        }
        writer_.writeFile(text, file);
        if (!report_.hasFailures())
            out_.text() += shown(file) + '\n';
        return !report_.hasFailures();
    }

    /// What leads to a new file could not be written: the next call would make a second one.
    void takeBackIfFailed(const fs::path& file) {
        if (!report_.hasFailures())
            return;
        std::error_code ignored;
        fs::remove(file, ignored);
        const std::string line = shown(file) + '\n';
        if (out_.text().ends_with(line))
            out_.text().resize(out_.text().size() - line.size());
    }

    /// In the file's own bytes; a warning when the field is not written the plain way.
    void setField(const fs::path& file, const char* name, const std::string& value, int firstLine,
                  const TableRule& table) {
        const auto before = readBytes(file, report_);
        if (!before)
            return;
        const std::string after = withField(*before, name, value);
        std::string plain = after; // as readSource() would have it
        std::erase(plain, '\r');
        if (plain.starts_with(kByteOrderMark))
            plain.erase(0, kByteOrderMark.size());
        Report read;
        const auto parts = firstLine > 1 ? splitFrontMatter(plain, shown(file), read)
                                         : SourceParts{plain, std::nullopt, 1};
        if (parts)
            readFields(parts->frontMatter, firstLine, shown(file), frontMatterFields(table), read);
        if (parts && !read.hasFaults())
            writer_.writeFile(after, file);
        else
            report_.warning({shown(file)}, std::string("y écrire ") + name + " = " + value);
    }

    const fs::path& course_;
    OutputBuffer& out_;
    Report& report_;
    SourceWriter writer_;
    std::vector<Source> pages_;
    std::vector<Test> tests_;
    std::set<std::int64_t> numbers_;
    std::set<std::int64_t> references_;
};

} // namespace

void addToCourse(const fs::path& course, const Addition& addition, OutputBuffer& out,
                 Report& report) {
    CourseAddition adding(course, out, report);
    if (!adding.read())
        return;
    for (const std::string& page : addition.pages)
        adding.addPage(page);
    for (const std::string& chapter : addition.questions)
        adding.addQuestion(chapter);
    if (!out.flush())
        report.outputFailure(out.error());
}

} // namespace coursetool
