// The course tool's `calc` as a process of its own.

#include "support/french_locale.h"

#include <QProcess>

#include <gmock/gmock.h>

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Under a French locale and where nothing could be drawn: who asks for a display ends there.
Outcome calc(const QStringList& arguments, const QByteArray& input = {}) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LOCPATH", FRENCH_LOCALES);
    environment.insert("LC_ALL", "fr_FR.UTF-8");
    environment.insert("QT_QPA_PLATFORM", "none");
    QProcess tool;
    tool.setProcessEnvironment(environment);
    tool.start(COURS_PROGRAM, QStringList("calc") + arguments);
    tool.write(input);
    tool.closeWriteChannel();
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit);
    return {tool.exitCode(), tool.readAllStandardOutput().toStdString(),
            tool.readAllStandardError().toStdString()};
}

TEST(Calc, printsTheLineOfTheDisplay) {
    const std::pair<QStringList, std::string> rows[] = {
        {{"sin 30"}, " .5\n"},
        {{"--radians", "4 * invTAN 1"}, " 3.14159265358979\n"},
        {{"--scientific", "12345"}, "1.2345E+04\n"},
        {{"-3+2"}, "-1\n"},
        {{"--", "-3+2"}, "-1\n"},
        {{"-3", "--scientific"}, "-3.E+00\n"},
        {{"-sin 30"}, "-.5\n"},
        {{"--3"}, " 3\n"},
        {{""}, " 0\n"},
    };
    for (const auto& [arguments, line] : rows) {
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.out, line);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.status, 0);
    }
}

TEST(Calc, aFaultIsAMessageAndAStatus) {
    const std::tuple<const char*, int, std::string> rows[] = {
        {"1 / 0", 1, "Calcul impossible\n"},
        {"1E999", 1, "Dépassement de capacité\n"},
        {"(1", 2, "Erreur saisie: revoir les parenthèses\n"},
        {"2 * ", 3, "Erreur saisie: incompréhension sur opérateurs: ^ * / + -\n"},
    };
    for (const auto& [expression, status, message] : rows) {
        const Outcome outcome = calc({expression});
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(outcome.err, message);
        EXPECT_EQ(outcome.status, status);
    }
}

TEST(Calc, refusesCallsThatMakeNoSense) {
    for (const QStringList& arguments : {QStringList{},
                                         {"2", "+", "3"},
                                         {"--radian", "3"},
                                         {"-radians", "3"},
                                         {"--batch", "3"},
                                         {"--batch", "--trace"}}) {
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.status, 64) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, testing::StartsWith("orvalente-cours : "));
    }
}

TEST(Calc, aBatchAnswersEveryLine) {
    const QByteArray tooLong(3 << 20, '1');
    const Outcome outcome =
        calc({"--batch"}, "1.5+1\r\n\n2 *  * 3\n" + tooLong + "\n1E999\n1/0\n-7");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "0\t 2.5\n0\t 0\n"
                           "3\tErreur saisie: incompréhension sur opérateurs: ^ * / + -\n"
                           "1\tCalcul impossible\n1\tDépassement de capacité\n"
                           "1\tCalcul impossible\n0\t-7\n");
}

TEST(Calc, aBatchAnswersBeforeItAsks) {
    QProcess tool;
    tool.start(COURS_PROGRAM, {"calc", "--batch"});
    for (const char* question : {"1+1\n", "2+2\n"}) {
        tool.write(question);
        ASSERT_TRUE(tool.waitForReadyRead());
        EXPECT_TRUE(tool.readAllStandardOutput().startsWith("0\t "));
    }
    tool.closeWriteChannel();
    EXPECT_TRUE(tool.waitForFinished());
}

TEST(Calc, aTraceShowsEveryStep) {
    EXPECT_EQ(calc({"--trace", "(2+3)*sqr 4"}).out, "simplifier\t (2 + 3) * SQR 4 \n"
                                                    "calculfonctions\t (2 + 3) * 2 \n"
                                                    "simplifier\t (2 + 3) * 2 \n"
                                                    "calculoperateurs\t 5 \n"
                                                    "calculparentheses\t 5 * 2 \n"
                                                    "calculoperateurs\t 10 \n"
                                                    " 10\n");
}

} // namespace
