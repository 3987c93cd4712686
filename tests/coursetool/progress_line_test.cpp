#include "coursetool/progress_line.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <string>

namespace {

void tellFiveOf(std::size_t all, std::FILE* stream) {
    coursetool::ProgressLine line(stream, std::chrono::milliseconds(0));
    for (std::size_t done = 1; done <= 5; ++done)
        line.tell("pages", done, all);
    line.clear();
    line.clear();
}

/// What a terminal is sent.
std::string sentToTerminal(std::size_t all) {
    const int master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    EXPECT_EQ(grantpt(master) | unlockpt(master), 0);
    const int kept = open(ptsname(master), O_RDWR | O_NOCTTY); // what was written stays readable
    std::FILE* const stream = fdopen(dup(kept), "w");
    tellFiveOf(all, stream);
    std::fclose(stream);
    std::string sent(4096, '\0');
    sent.resize(static_cast<std::size_t>(read(master, sent.data(), sent.size())));
    close(kept);
    close(master);
    return sent;
}

TEST(ProgressLine, isWrittenOverAndGoneWhenTheWorkIsDone) {
    const std::string blanks(std::string("pages : 4 sur 5").size(), ' ');
    EXPECT_EQ(sentToTerminal(5), "\rpages : 1 sur 5\rpages : 2 sur 5\rpages : 3 sur 5"
                                 "\rpages : 4 sur 5\r" +
                                     blanks + '\r');
    // Work that was broken off leaves nothing either.
    EXPECT_TRUE(sentToTerminal(9).ends_with("\rpages : 5 sur 9\r" + blanks + '\r'));
}

TEST(ProgressLine, writesNothingIntoAPipe) {
    std::FILE* const file = std::tmpfile();
    tellFiveOf(9, file);
    EXPECT_EQ(std::ftell(file), 0);
    std::fclose(file);
}

} // namespace
