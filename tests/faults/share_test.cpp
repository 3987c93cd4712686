// A course on a share that goes away while the shell shows it, and comes back.

#include "coursetool/workspace.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr char kPageUnread[] = "says La page demandée ne peut pas être lue.";
constexpr char kCourseUnread[] = "search Aucune page trouvée\u00A0: ce cours ne peut pas être lu.";

/// Pages that the buttons of the window lead to, and more than the reader of databases keeps.
void writeSources(const Workspace& work) {
    const auto write = [&work](int number, const std::string& title, const std::string& text) {
        work.write("sources/pages/" + std::to_string(number) + ".page",
                   "+++\nNumeropage = " + std::to_string(number) + "\nmoteur = true\ntitre = \"" +
                       title + "\"\n+++\n##TITBAR" + title + '\n' + text + "¶\n");
    };
    constexpr int kFillers = 20;
    for (int number = 2; number <= kFillers; ++number)
        write(number, "Longue", std::string(150'000, 'a'));
    write(1, "Un", "Un");
    write(28, "Physique", "Le prisme" + std::string(5'000, 'b'));
    write(30, "Chimie", std::string(5'000, 'c'));
}

/// What the shell tells behind a mark, up to the next one.
std::string part(const std::string& all, const std::string& mark, const std::string& next) {
    const std::size_t from = all.find(mark);
    const std::size_t end = from == all.npos ? from : all.find(next, from);
    return from == all.npos ? std::string() : all.substr(from, end - from);
}

TEST(Share, ofTheCourseMayGoAwayAndComeBack) {
    const Workspace work;
    writeSources(work);
    const auto run = [](const std::string& command) { return std::system(command.c_str()); };
    const std::string course = work.path("course").string();
    ASSERT_EQ(run(COURS_PROGRAM " build " + work.path("sources").string() + " -o " + course +
                  " 2> " + work.path("warnings").string()),
              0);
    const std::string flag = work.path("away").string();
    const std::string said = work.path("said").string();
    mkdir(work.path("run").c_str(), 0700);
    EXPECT_EQ(run("AWAY_BELOW=" + course + " AWAY_WHILE=" + flag +
                  " XDG_RUNTIME_DIR=" + work.path("run").string() +
                  " QT_QPA_PLATFORM=offscreen LD_PRELOAD=" SHARE_AWAY " timeout 100 " AWAY_SHELL
                  " " +
                  course + ' ' + flag + " > " + said),
              0);
    const std::string all = work.read("said");
    const std::string away = part(all, "away\n", "back\n");
    EXPECT_THAT(part(away, "command6:", "command5:"), HasSubstr(kPageUnread)) << all;
    EXPECT_THAT(away, HasSubstr(kCourseUnread)) << all;
    // Whole again, and nothing of the time between is left.
    const std::string back = part(all, "back\n", "\n\n");
    EXPECT_THAT(part(back, "command6:", "command5:"), HasSubstr("KAROPE Physique")) << all;
    EXPECT_THAT(part(back, "command5:", "command4:"), HasSubstr("KAROPE Chimie")) << all;
    EXPECT_THAT(back, HasSubstr("search 1 page trouvée.")) << back;
    EXPECT_THAT(part(back, "Command2:", "\n\n"), HasSubstr("KAROPE Un"));
    EXPECT_THAT(back, Not(HasSubstr("ne peut pas être lu")));
}

} // namespace
