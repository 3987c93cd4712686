#include "coursedata/course_directory.h"
#include "support/files.h"

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
