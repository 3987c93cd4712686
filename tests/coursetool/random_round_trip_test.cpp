// Courses that nobody wrote: what is extracted of them without a word builds into the same values.

#include "coursetool/build.h"
#include "coursetool/extract.h"
#include "coursetool/workspace.h"
#include "support/course_compiler.h"

#include <random>

namespace {

using jet::ColumnType;
using Row = std::vector<jet::Value>;

class RandomCourse {
public:
    explicit RandomCourse(unsigned seed) : random_(seed) {}

    std::vector<NewTable> pages() { return {table(u"cours", kPages, 30)}; }
    std::vector<NewTable> exercises() {
        return {table(u"DESCRIPTION", kTests, 4), table(u"Contenu", kQuestions, 20)};
    }

private:
    // The first column of each is its key.
    using Columns = std::vector<jet::Column>;
    inline static const Columns kPages = {
        {u"Numeropage", ColumnType::Long}, {u"Index", ColumnType::Long},
        {u"titre", ColumnType::Text, 255}, {u"precedent", ColumnType::Boolean},
        {u"suite", ColumnType::Boolean},   {u"imprimable", ColumnType::Boolean},
        {u"moteur", ColumnType::Boolean},  {u"debutimp", ColumnType::Long},
        {u"finimp", ColumnType::Long},     {u"sommaire", ColumnType::Long},
        {u"fpc", ColumnType::Memo}};
    inline static const Columns kTests = {{u"Chapitre", ColumnType::Integer},
                                          {u"Titre", ColumnType::Text, 255},
                                          {u"Nbquest", ColumnType::Integer}};
    inline static const Columns kQuestions = {{u"REFERENCE", ColumnType::Long},
                                              {u"type", ColumnType::Integer},
                                              {u"solution", ColumnType::Text, 255},
                                              {u"question", ColumnType::Memo},
                                              {u"SiFaux", ColumnType::Memo}};

    int upTo(int highest) { return std::uniform_int_distribution<int>(0, highest)(random_); }
    bool oneIn(int times) { return upTo(times - 1) == 0; }

    /// Some columns are missing, but no key.
    NewTable table(std::u16string name, const Columns& columns, int most) {
        NewTable table{std::move(name), {columns.front()}, {}};
        for (std::size_t c = 1; c < columns.size(); ++c)
            if (!oneIn(20))
                table.columns.push_back(columns[c]);
        for (int rows = upTo(most); rows > 0; --rows) {
            Row row = {key(columns.front().type)};
            for (std::size_t c = 1; c < table.columns.size(); ++c)
                row.push_back(value(table.columns[c].type));
            table.rows.push_back(std::move(row));
        }
        return table;
    }

    jet::Value number(ColumnType type, std::int32_t number) {
        if (type == ColumnType::Integer)
            return static_cast<std::int16_t>(number);
        return number;
    }
    /// Now and then one that is there already, or none.
    jet::Value key(ColumnType type) {
        return oneIn(300) ? jet::Value() : number(type, oneIn(300) ? 1 : ++key_);
    }

    jet::Value value(ColumnType type) {
        if (type == ColumnType::Boolean)
            return oneIn(2);
        if (oneIn(4))
            return {};
        if (type == ColumnType::Text)
            return text(upTo(12) == 0 ? 255 : upTo(20));
        if (type == ColumnType::Memo)
            return text(oneIn(10) ? 9000 : upTo(60));
        const std::int32_t numbers[] = {0, 1, -1, 32767, -32768, upTo(1000)};
        return number(type, numbers[upTo(5)]);
    }

    /// Mostly of what could be taken for something else.
    std::u16string text(int length) {
        static const std::u16string kPieces[] = {
            u"+++\r\n",    u"\r\n",   u"\\",        u"\"",     u"'",      u"##BOL1\r\n",
            u"\u00B6",     u"\uFEFF", u"\t",        u"\u0085", u"\u2028", u"\u0001",
            u"\U0001D11E", u"\uFFFF", u"\\+++\r\n", u" ",      u"\u00E9"};
        std::u16string text;
        while (text.size() + 8 < static_cast<std::size_t>(length))
            text += oneIn(3) ? kPieces[upTo(static_cast<int>(std::size(kPieces)) - 1)]
                             : std::u16string(1, static_cast<char16_t>(u' ' + upTo(0x2000)));
        if (text.starts_with(u'\uFEFF')) // which a database may take for its own mark
            text.insert(0, 1, u'x');
        if (oneIn(200))
            text += oneIn(2) ? u"\rx" : u"\nx";
        return oneIn(3) ? text + u"\r\n" : text;
    }

    std::mt19937 random_;
    std::int32_t key_ = 100;
};

/// The lines of a table by their records' place among those that the report does not name.
std::vector<std::string> without(const std::string& report, const std::string& table,
                                 const std::vector<std::string>& rows) {
    std::vector<std::string> left;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (report.find(": " + table + ", enregistrement " + std::to_string(i + 1) + ": ") ==
            std::string::npos)
            left.push_back(rows[i]);
    return left;
}

/// Columns that a database lacks are there, and NULL or false, in what is built.
std::vector<std::string> withoutEmpty(std::vector<std::string> rows) {
    for (std::string& row : rows) {
        for (const char* const empty : {":null", ":false"})
            for (std::size_t end; (end = row.find(empty)) != std::string::npos;) {
                const std::size_t start = row.rfind('"', end - 2);
                const std::size_t after = end + std::string_view(empty).size();
                row.erase(start, after - start + (row[after] == ','));
            }
        if (row.ends_with(",}"))
            row.erase(row.size() - 2, 1);
    }
    return rows;
}

TEST(RandomCourses, keepEveryValueThatIsNotNamed) {
    int silent = 0;
    int named = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        Workspace work;
        std::filesystem::create_directory(work.path("old"));
        RandomCourse course(seed);
        writeDatabase(work.path("old/Zekx.mdb"), course.pages());
        writeDatabase(work.path("old/qekx.mdb"), course.exercises());
        coursetool::Report report;
        coursetool::extract(work.path("old"), work.path("src"), report);
        const std::string told = textOf(report);
        coursetool::Report faults;
        const bool built = coursetool::build(work.path("src"), work.path("new"), faults);
        if (!built) {
            // Only what was said beforehand is refused.
            EXPECT_TRUE(told.find(" build ") != std::string::npos) << textOf(faults);
            ++named;
            continue;
        }
        silent += told.empty();
        const std::pair<const char*, const char*> tables[] = {
            {"Zekx.mdb", "cours"}, {"qekx.mdb", "DESCRIPTION"}, {"qekx.mdb", "Contenu"}};
        for (const auto& [file, table] : tables)
            EXPECT_EQ(
                without(told, table, withoutEmpty(work.rows(std::string("new/") + file, table))),
                without(told, table, withoutEmpty(work.rows(std::string("old/") + file, table))))
                << told;
    }
    EXPECT_GE(silent, 5);
    EXPECT_GE(named, 5);
}

/// The demonstration course, with its pages in Markdown and its tests.
TEST(DemonstrationCourse, comesBackFromItsBuild) {
    Workspace work;
    coursetool::Report report;
    ASSERT_TRUE(coursetool::build(DEMONSTRATION_COURSE, work.path("old"), report,
                                  test_support::courseCompiler()));
    coursetool::extract(work.path("old"), work.path("src"), report);
    ASSERT_TRUE(coursetool::build(work.path("src"), work.path("new"), report));
    EXPECT_EQ(textOf(report), "");
    EXPECT_EQ(work.files("new"), work.files("old"));
    for (const std::string& file : work.files("old"))
        EXPECT_TRUE(work.read("new/" + file) == work.read("old/" + file)) << file;
}

} // namespace
