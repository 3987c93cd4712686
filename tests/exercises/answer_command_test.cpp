#include "exercises/answer_command.h"

#include <gtest/gtest.h>

#include <sstream>

namespace exercises {
namespace {

struct Called {
    explicit Called(const AnswerOptions& options, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream out, err;
        status = runAnswer(options, in, out, err);
        written = out.str();
        complained = err.str();
    }
    int status;
    std::string written;
    std::string complained;
};

TEST(AnswerCommand, saysWhetherTheAnswerIsRight) {
    const Called right({.solution = "masse", .text = "C'est la massé !"});
    EXPECT_EQ(right.written, "juste\n");
    EXPECT_EQ(right.status, 0);
    const Called wrong({.solution = "masse", .text = "poids \xFF"});
    EXPECT_EQ(wrong.written, "faux\n");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(right.complained + wrong.complained, "");
}

TEST(AnswerCommand, aBatchGivesOneVerdictALine) {
    AnswerOptions batch;
    batch.batch = true;
    const Called fine(batch, "masse\tmasses\r\nmasse\tpoids\n\t\nforce vive\tla\tforce vive");
    EXPECT_EQ(fine.written, "juste\nfaux\njuste\njuste\n");
    EXPECT_EQ(fine.complained, "");
    EXPECT_EQ(fine.status, 0);

    const Called faulty(batch, "masse masse\n\nmasse\tmasse " + std::string(1 << 20, 'x') +
                                   "\nmasse\tmasse\n");
    EXPECT_EQ(faulty.written, "faux\nfaux\nfaux\njuste\n");
    EXPECT_EQ(faulty.complained,
              "orvalente-cours : ligne 1 : pas de tabulation entre solution et réponse.\n"
              "orvalente-cours : ligne 2 : pas de tabulation entre solution et réponse.\n"
              "orvalente-cours : ligne 3 : elle est trop longue.\n");
    EXPECT_EQ(faulty.status, 1);
}

} // namespace
} // namespace exercises
