#include "launcher_case.h"

using platform::Answer;
using platform::Message;
using platform::StartFailure;

class LauncherTest : public LauncherCase {
protected:
    QByteArray argument() const { return raw_status_file::characters(directory_.path(), 31); }

    int statusOf(std::int16_t module) const {
        launcher_.queryModuleStatus(module);
        return module;
    }

    std::int32_t pidOf(int module) const { return *state_.SiblingProcessIds.slot(module); }
};

TEST_F(LauncherTest, statusIsMinusOneForTheModuleItselfOrElseTheNumberRunning) {
    EXPECT_EQ(statusOf(7), 0);
    put(2, "OUI");
    put(30, "  OUI ");
    put(31, "OUI");
    put(5, "non");
    put(6, "\tOUI");
    EXPECT_EQ(statusOf(7), 2);
    EXPECT_EQ(statusOf(2), -1);
    EXPECT_EQ(statusOf(5), -1);
    put(7, "NON ");
    EXPECT_EQ(statusOf(7), -1);
    EXPECT_EQ(statusOf(99), -1);
    EXPECT_EQ(statusOf(0), -1);
}

TEST_F(LauncherTest, statusIsMinusOneWithoutAFile) {
    QFile::remove(directory_.filePath(raw_status_file::kName));
    EXPECT_EQ(statusOf(7), -1);
    EXPECT_FALSE(launcher_.updateIsPossible());
    EXPECT_TRUE(QFile::exists(directory_.filePath(raw_status_file::kName)));
}

TEST_F(LauncherTest, aCodeNamesAProgramAndAnExercise) {
    const struct {
        std::int16_t code;
        const char* exercise;
        const char* program;
    } rows[] = {
        {21, "Exercice 01.E24", "Simu21.exe"},
        {22, "Exercice 02.E24", "Simu21.exe"},
        {70, "", "SIMU07.EXE"},
        {90, "", "SIMU09.EXE"},
        {103, "Exercice 03.E20", "Simu22.exe"},
        {105, "Exercice 05.E20", "Simu22.exe"},
        {104, "", "Simu22.exe"},
        {230, "", "Simu23.exe"},
        {233, "Exercice 03.E21", "Simu23.exe"},
        {234, "Exercice 04.E21", "Simu23.exe"},
        {235, "Exercice 05.E21", "Simu23.exe"},
        {236, "Exercice 06.E21", "Simu23.exe"},
    };
    for (const auto& row : rows) {
        starter_.programs.clear();
        put(31, "before");
        launcher_.launchModule(row.code);
        EXPECT_EQ(argument(), row.exercise) << row.code;
        EXPECT_EQ(starter_.programs, QStringList{state_.InstallDir + row.program}) << row.code;
        EXPECT_EQ(starter_.variables.value("ORVALENTE_STATUS_FILE"), state_.StatusFilePath);
        EXPECT_EQ(activator_.requests.back(), std::make_pair(qint64{4711}, QString(row.program)));
        EXPECT_EQ(pidOf(row.code / 10), 4711) << row.code;
    }
}

TEST_F(LauncherTest, aCodeWithoutAProgramOnlyClearsTheArgument) {
    for (const std::int16_t code : std::initializer_list<std::int16_t>{55, 999, -70, 10}) {
        put(31, "before");
        launcher_.launchModule(code);
        EXPECT_EQ(argument(), "") << code;
        EXPECT_EQ(state_.ModuleNumber, code / 10);
    }
    put(31, "before");
    for (const std::int16_t code : std::initializer_list<std::int16_t>{0, 9, -9})
        launcher_.launchModule(code);
    EXPECT_EQ(argument(), "before");
    EXPECT_TRUE(starter_.programs.isEmpty());
    // Each is told, and by its code.
    EXPECT_EQ(reports_.lines.size(), 7);
    EXPECT_TRUE(reports_.lines.front().contains("code\u00A0055")) << qPrintable(reports_.lines[0]);
}

TEST_F(LauncherTest, asksBeforeItStartsBesideAnotherModule) {
    put(9, "OUI");
    messageBoxes_.answers = {Answer::No, Answer::Yes};
    launcher_.launchModule(235);
    EXPECT_EQ(messageBoxes_.messages.back(),
              (Message{"Orvalente",
                       "Il y a déjà un module en cours d'exécution.\r\n"
                       "Confirmez-vous cette commande ?",
                       Message::Icon::Question, Message::Buttons::YesNo}));
    EXPECT_TRUE(starter_.programs.isEmpty());
    EXPECT_EQ(pidOf(23), 0);
    EXPECT_EQ(argument(), "Exercice 05.E21");
    EXPECT_EQ(state_.ModuleNumber, 1);

    launcher_.launchModule(70);
    EXPECT_EQ(starter_.programs.size(), 1);
    EXPECT_EQ(messageBoxes_.messages.size(), 2u);
}

TEST_F(LauncherTest, aRunningModuleComesToTheFrontUnasked) {
    launcher_.launchModule(70);
    put(7, "OUI");
    launcher_.launchModule(70);
    EXPECT_EQ(starter_.programs.size(), 1);
    EXPECT_EQ(activator_.requests.size(), 2u);
    EXPECT_EQ(activator_.requests[1], std::make_pair(qint64{4711}, QStringLiteral("SIMU07.EXE")));
    EXPECT_EQ(state_.ModuleNumber, -1);

    // It has ended, and any other module runs: the stored process still decides, meant so.
    put(7, "NON");
    put(9, "OUI");
    launcher_.launchModule(70);
    EXPECT_EQ(starter_.programs.size(), 1);

    put(9, "NON");
    launcher_.launchModule(70);
    EXPECT_EQ(starter_.programs.size(), 2);
    EXPECT_TRUE(messageBoxes_.messages.empty());
}

TEST_F(LauncherTest, aFailedStartIsToldInALineAndKeepsTheOldProcess) {
    state_.SiblingProcessIds.store(7, 12);
    const struct {
        StartFailure failure;
        const char* word;
    } rows[] = {
        {StartFailure::Missing, "introuvable"},
        {StartFailure::NeedsWine, "Wine"},
        {StartFailure::LeadsOut, "hors du dossier"},
        {StartFailure::SixteenBit, "16\u00A0bits"},
        {StartFailure::NotAProgram, "n’est pas un programme"},
        {StartFailure::Refused, "refusé"},
    };
    for (const auto& row : rows) {
        starter_.result = {std::nullopt, row.failure};
        testing::internal::CaptureStderr();
        launcher_.launchModule(70);
        const QString printed = QString::fromStdString(testing::internal::GetCapturedStderr());
        const QString line = reports_.lines.isEmpty() ? QString() : reports_.lines.takeLast();
        EXPECT_TRUE(line.contains("SIMU07.EXE") && line.contains(row.word)) << qPrintable(line);
        EXPECT_TRUE(printed.contains(line)) << qPrintable(printed);
    }
    launcher_.reportHidden("SIMU07.EXE");
    EXPECT_TRUE(reports_.lines.takeLast().contains("SIMU07.EXE"));
    launcher_.reportLeftBehind("SIMU07.EXE");
    EXPECT_TRUE(reports_.lines.takeLast().contains("SIMU07.EXE\u00A0» est déjà ouvert"));
    EXPECT_EQ(pidOf(7), 12);
    EXPECT_TRUE(activator_.requests.empty());
    EXPECT_TRUE(messageBoxes_.messages.empty());
}

TEST_F(LauncherTest, anUpdateNeedsThirtyRecordsThatSayExactlyNon) {
    put(31, "Exercice 01.E24");
    EXPECT_TRUE(launcher_.confirmUpdateIsPossible());
    EXPECT_TRUE(messageBoxes_.messages.empty());
    for (const char* text : {"OUI", "NON ", "non", ""}) {
        put(30, text);
        EXPECT_FALSE(launcher_.confirmUpdateIsPossible()) << text;
    }
    EXPECT_EQ(messageBoxes_.messages.back(),
              (Message{"Mise à jour impossible",
                       "Pour effectuer une mise à jour, tous les modules du logiciel doivent être "
                       "fermés",
                       Message::Icon::Exclamation, Message::Buttons::Ok}));
}
