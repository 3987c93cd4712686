#include "coursedata/course_directory.h"
#include "coursedata/databases.h"
#include "support/files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

TEST(CourseDirectory, isTheNamedOneOrTheFirstThatHoldsACourse) {
    const QTemporaryDir course, demonstration, empty;
    test_support::writeFile(course.filePath("ZEKX.MDB"), "x");
    test_support::writeFile(demonstration.filePath("Zekx.mdb"), "x");

    const struct {
        std::optional<QString> named;
        QString program, demonstration, expected;
    } rows[] = {
        {empty.path(), course.path(), demonstration.path(), empty.path()},
        {course.path(), demonstration.path(), demonstration.path(), course.path()},
        {{}, course.path(), demonstration.path(), course.path()},
        {{}, empty.path(), demonstration.path(), demonstration.path()},
        {{}, empty.path(), "/no/such/directory", empty.path()},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(coursedata::chooseCourseDirectory({row.named, row.program, row.demonstration}),
                  row.expected);
    }
}

// What stands in the place of a database and is none: a folder, a link to what is not the course's.
TEST(CourseDirectory, hasItsDatabasesInAnyLetterCase) {
    const QTemporaryDir course, elsewhere;
    const auto found = [&course] {
        const auto path = coursedata::findDatabase(course.path().toStdString(), "Zekx.mdb");
        return path ? path->filename().string() : "none";
    };
    EXPECT_EQ(found(), "none");
    test_support::writeFile(elsewhere.filePath("other.mdb"), "x");
    QFile::link(elsewhere.filePath("other.mdb"), course.filePath("ZEKX.mdb"));
    QDir(course.path()).mkdir("Zekx.mdb");
    EXPECT_EQ(found(), "none");
    for (const char* name : {"zekx.mdb", "zEKX.MDB", "ZekX.mdb"}) {
        test_support::writeFile(course.filePath(name), "x");
        EXPECT_EQ(found(), name); // each before the last one in the order of code points
    }
    QDir(course.path()).rmdir("Zekx.mdb");
    test_support::writeFile(course.filePath("Zekx.mdb"), "x");
    EXPECT_EQ(found(), "Zekx.mdb");
    EXPECT_FALSE(coursedata::findDatabase({}, "Zekx.mdb"));
    EXPECT_EQ(coursedata::findCourseDatabase(course.path() + '/'), course.filePath("Zekx.mdb"));
}
