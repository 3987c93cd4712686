// An installed course whose databases are damaged: shown, checked, taken apart.

#include "check/check.h"
#include "coursedata/databases.h"
#include "coursedata/exercise_tables.h"
#include "coursedata/jet_recordset.h"
#include "coursedata/page_index.h"
#include "coursetool/dump.h"
#include "coursetool/extract.h"
#include "databases.h"
#include "drawings.h"
#include "exercises/database_records.h"
#include "folder.h"
#include "formats/all.h"
#include "jet/writer.h"
#include "support/memory_database.h"

namespace fuzz {

namespace {

using jet::ColumnType;
using Row = std::vector<jet::Value>;

std::FILE* nowhere() {
    static std::FILE* const file = std::fopen("/dev/null", "w");
    return file;
}

/// As the shell reads it.
void openAsTheShell(const QString& folder) {
    const auto course = coursedata::openRecordset(
        folder + u'/' + QLatin1String(coursedata::kCourseFile), QStringLiteral("cours"));
    if (course) {
        coursedata::PageIndex index;
        coursedata::buildPageIndex(**course, index);
    } else {
        requireWords(course.error());
    }
    exercises::DatabaseRecords records;
    records.read(coursedata::openExerciseTables(folder));
    for (std::int16_t chapter = 0; chapter < 3; ++chapter) {
        records.describe(chapter);
        records.moveTo(chapter, 1);
        records.type();
        records.solution();
        records.question();
        records.siFaux();
    }
}

void dumpAll(const std::filesystem::path& database, coursetool::Report& report) {
    coursetool::OutputBuffer out(nowhere());
    coursetool::dump(database, {}, out, report);
    for (const char* table : {"cours", "DESCRIPTION", "Contenu"})
        coursetool::dump(database, table, out, report);
    out.flush();
}

void readOne(Input input) {
    const CourseFolder folder;
    for (const char* name : {coursedata::kCourseFile, coursedata::kExerciseFile})
        folder.writeFile(name, input);
    openAsTheShell(QString::fromStdString(folder.root().string()));
    coursetool::Report report;
    dumpAll(folder.root() / coursedata::kCourseFile, report);
    check::CheckRequest request;
    request.course = folder.root();
    check::findingsIn(request, fonts());
    coursetool::extract(folder.root(), folder.output(), report);
    folder.requireWithin(report);
}

template <class... Values>
Row row(Values... values) {
    return {jet::Value(values)...};
}

/// Both databases of a small course in one: a file of each kind would be read no further.
std::vector<std::vector<std::byte>> smallCourse() {
    std::vector<std::uint8_t> bytes;
    auto writer = jet::DatabaseWriter::create(std::make_unique<test_support::MemorySink>(bytes));
    const auto add = [&](std::u16string_view name, const std::vector<jet::Column>& columns,
                         const std::vector<Row>& rows) {
        auto table = writer.addTable(name, columns);
        require(static_cast<bool>(table), "a table of the small course can be written");
        for (const Row& values : rows)
            require(static_cast<bool>(table->append(values)), "and its rows");
    };
    const std::u16string longPage =
        u"##SI12\r\n" + std::u16string(5000, u'm') + u"¶\r\n##LIERTsuite#PAG002\r\n";
    add(u"cours",
        {{u"Numeropage", ColumnType::Long},
         {u"Index", ColumnType::Long},
         {u"titre", ColumnType::Text, 255},
         {u"imprimable", ColumnType::Boolean},
         {u"moteur", ColumnType::Boolean},
         {u"debutimp", ColumnType::Long},
         {u"fpc", ColumnType::Memo}},
        {row(1, 1, u"Première", true, true, 1, u"##SI12\r\nL’énergie¶\r\n##IMAa.svg\r\n"),
         row(2, 2, u"Deuxième", false, true, 1, longPage),
         {3, 3, jet::Value(), false, false, jet::Value(), u"##TAB1\r\n"}});
    add(u"DESCRIPTION",
        {{u"Chapitre", ColumnType::Integer},
         {u"Titre", ColumnType::Text, 255},
         {u"Nbquest", ColumnType::Integer}},
        {row(std::int16_t{1}, u"Un test / ..", std::int16_t{2})});
    add(u"Contenu",
        {{u"REFERENCE", ColumnType::Long},
         {u"type", ColumnType::Integer},
         {u"solution", ColumnType::Text, 255},
         {u"question", ColumnType::Memo},
         {u"SiFaux", ColumnType::Memo}},
        {row(101, std::int16_t{2}, u"10000", u"##EXOOP\r\noui¶\r\n", u"Non¶\r\n"),
         {102, std::int16_t{3}, u"joule", u"##EXOTX\r\n", jet::Value()}});
    require(static_cast<bool>(writer.finish()), "the small course can be written");
    const auto written = std::as_bytes(std::span(bytes));
    return {{written.begin(), written.end()}};
}

} // namespace

const Format kInstalledCourse{
    "installed-course",
    readOne,
    {{"fuzz/corpus/installed-course", ".mdb"}},
    [] {
        auto words = pageWords({});
        words.insert(words.end(), kDatabaseWords.begin(), kDatabaseWords.end());
        return words;
    }(),
    std::size_t{1} << 20,
    kDatabasePage,
    smallCourse,
};

} // namespace fuzz
