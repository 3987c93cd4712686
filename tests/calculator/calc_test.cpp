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

struct Call {
    QStringList arguments;
    int status;
    std::string out;
    std::string err; ///< how it begins
};

TEST(Calc, printsTheLineOfTheDisplayOrTheMessage) {
    const std::string wrongCall = "orvalente-cours : ";
    const Call calls[] = {
        {{"sin 30"}, 0, " .5\n", ""},
        {{"--radians", "4 * invTAN 1"}, 0, " 3.14159265358979\n", ""},
        {{"--scientific", "12345"}, 0, "1.2345E+04\n", ""},
        {{"-3+2"}, 0, "-1\n", ""},
        {{"--", "-3+2"}, 0, "-1\n", ""},
        {{"-3", "--scientific"}, 0, "-3.E+00\n", ""},
        {{"-sin 30"}, 0, "-.5\n", ""},
        {{"--3"}, 0, " 3\n", ""},
        {{""}, 0, " 0\n", ""},
        {{"1 / 0"}, 1, "", "Calcul impossible\n"},
        {{"1E999"}, 1, "", "Dépassement de capacité\n"},
        {{"(1"}, 2, "", "Erreur saisie: revoir les parenthèses\n"},
        {{"2 * "}, 3, "", "Erreur saisie: incompréhension sur opérateurs: ^ * / + -\n"},
        {{}, 64, "", wrongCall},
        {{"2", "+", "3"}, 64, "", wrongCall},
        {{"--radian", "3"}, 64, "", wrongCall},
        {{"-radians", "3"}, 64, "", wrongCall},
        {{"--batch", "3"}, 64, "", wrongCall},
        {{"--batch", "--trace"}, 64, "", wrongCall},
    };
    for (const auto& [arguments, status, out, err] : calls) {
        const Outcome outcome = calc(arguments);
        EXPECT_EQ(outcome.status, status) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.out, out);
        EXPECT_THAT(outcome.err, testing::StartsWith(err));
        EXPECT_EQ(outcome.err.empty(), err.empty()) << outcome.err;
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
