// A course on a share that goes away while the shell shows it, and comes back.

#include "coursetool/workspace.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>

namespace {

TEST(Share, ofTheCourseMayGoAwayAndComeBack) {
    const Workspace work;
    work.write("sources/pages/1.page",
               "+++\nNumeropage = 1\ntitre = \"Un\"\n+++\n##TITBARUn\nUn¶\n");
    const auto run = [](const std::string& command) { return std::system(command.c_str()); };
    const std::string course = work.path("course").string();
    ASSERT_EQ(run(COURS_PROGRAM " build " + work.path("sources").string() + " -o " + course), 0);
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
    EXPECT_THAT(all, testing::HasSubstr("away\n"));
    EXPECT_THAT(all.substr(all.find("back\n")), testing::HasSubstr("Command2: Orvalente")) << all;
}

} // namespace
