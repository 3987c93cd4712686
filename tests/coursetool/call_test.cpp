// How the program is called: its help, what it says of wrong calls, what shells complete.

#include "coursetool/program.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The names that the help lists.
QStringList subcommandsOf(const std::string& help) {
    QStringList names;
    for (const QString& line :
         QString::fromStdString(help).section("Sous-commandes:", 1).split('\n'))
        if (line.startsWith("  "))
            names.append(line.trimmed().section(' ', 0, 0));
    return names;
}

/// Everywhere, with examples that run as they stand.
TEST_F(Program, helpsInFrenchWithExamples) {
    work.write("cours/pages/01.page", "+++\nNumeropage = 1\nmoteur = true\n+++\nA¶\n");
    work.write("cours/pages/02.md", "+++\nNumeropage = 2\n+++\n# Deux\n");
    work.write("page.txt", "A¶\r\n");
    ASSERT_EQ(run("build cours -o installation").code, 0);
    const Outcome whole = run("--help");
    const QStringList names = subcommandsOf(whole.out);
    EXPECT_GE(names.size(), 12);
    EXPECT_FALSE(names.contains("completion"));
    for (const QString& name : names) {
        const Outcome help = run({name, "--help"});
        EXPECT_EQ(help.code, 0);
        for (const char* words : {"Usage : orvalente-cours ", "Affiche cette aide", "\nExemples :"})
            EXPECT_THAT(help.out, HasSubstr(words)) << name.toStdString();
        EXPECT_THAT(help.out, testing::Not(testing::ContainsRegex(
                                  "REQUIRED|Subcommand|Positional|TEXT[^E]")));
        if (name == "preview")
            continue; // shows a window until somebody closes it
        if (name == "publish" && !CAN_PUBLISH)
            continue; // without the compiler for browsers it says so
        for (const QString& line : QString::fromStdString(help.out).split('\n'))
            if (line.startsWith("  orvalente-cours ")) {
                const Outcome example = run(QProcess::splitCommand(line).sliced(1));
                EXPECT_EQ(example.code, 0) << line.toStdString() << '\n' << example.err;
            }
    }
    EXPECT_THAT(run("--version").out, StartsWith("orvalente-cours "));
}

TEST_F(Program, saysInFrenchWhatIsWrongWithACall) {
    const struct {
        const char* call;
        const char* said;
    } rows[] = {
        {"bidule", "sous-commande inconnue : « bidule » ; « orvalente-cours --help »"},
        {"--bidule", "argument inattendu : « --bidule »"},
        {"render --page", "la valeur de « --page » manque ; « orvalente-cours render --help »"},
        {"build -o a -o b", "« --output » est répété : l’écrire une seule fois"},
        {"check --fix=maybe", "« --fix » va sans valeur"},
        {"check --json=1", "« --json » va sans valeur"},
        {"completion csh", "il faut bash, zsh ou fish, pas « csh »"},
    };
    for (const auto& [call, said] : rows)
        EXPECT_THAT(run(call).err, StartsWith(std::string("orvalente-cours : ") + said)) << call;
}

TEST_F(Program, completesItsCommandLine) {
    work.write("bash", run("completion bash").out);
    work.write("zsh", run("completion zsh").out);
    work.write("fish", run("completion fish").out);
    const auto lines = [&](const char* shell, const QString& script) {
        QProcess child;
        child.setWorkingDirectory(QString::fromStdString(work.path().string()));
        child.start(QString::fromLatin1(shell), {"-c", script});
        EXPECT_TRUE(child.waitForFinished(60'000)) << shell;
        EXPECT_EQ(child.readAllStandardError().toStdString(), "") << shell;
        EXPECT_EQ(child.exitCode(), 0) << shell;
        return child.readAllStandardOutput().toStdString();
    };
    const auto inBash = [&](const char* words) {
        const QString line = QString::fromLatin1(words);
        return lines("bash", QStringLiteral("source ./bash; compopt() { :; }; COMP_WORDS=(%1); "
                                            "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                                            "_orvalente_cours; printf '%s\\n' \"${COMPREPLY[@]}\"")
                                 .replace("%1", line));
    };
    EXPECT_EQ(inBash("orvalente-cours se"), "search\n");
    EXPECT_EQ(inBash("orvalente-cours search --ig"), "--ignore-accents\n");
    EXPECT_EQ(inBash("orvalente-cours build -o s"), "src\n");
    EXPECT_EQ(inBash("orvalente-cours render src --page ''"), "\n");
    EXPECT_EQ(inBash("orvalente-cours dump ba"), "bash\n");
    EXPECT_EQ(lines("zsh", QStringLiteral("autoload -Uz compinit; zsh -n ./zsh")), "");
    EXPECT_THAT(run("completion zsh").out,
                HasSubstr("'(-o --output)'{-o,--output}'[Dossier d’installation à écrire]:DOSSIER:"
                          "_directories'"));
    const auto inFish = [&](const char* line) {
        return lines(
            "fish",
            QStringLiteral("source ./fish; complete -C '%1'").arg(QString::fromLatin1(line)));
    };
    EXPECT_THAT(inFish("orvalente-cours se"), StartsWith("search\tCherche des mots"));
    EXPECT_THAT(inFish("orvalente-cours render --sc"), StartsWith("--scale\tAgrandissement"));
    EXPECT_THAT(inFish("orvalente-cours render --source ba"), HasSubstr("bash"));
}

/// What Qt's part of the program is loaded from.
TEST_F(Program, namesThePartOfItThatIsMissing) {
    std::filesystem::copy_file(COURS_PROGRAM, work.path("alone"));
    work.write("page.txt", "A¶\r\n");
    QProcess child;
    child.setWorkingDirectory(QString::fromStdString(work.path().string()));
    child.start(QString::fromStdString(work.path("alone").string()),
                {"trace", "--source", "page.txt"});
    ASSERT_TRUE(child.waitForFinished(60'000));
    EXPECT_EQ(child.exitCode(), 1);
    const std::string said = child.readAllStandardError().toStdString();
    EXPECT_THAT(said, HasSubstr("cette partie du programme manque, à réinstaller : « orvalente-"));
    EXPECT_THAT(said, testing::EndsWith(" » manque, ou n’est pas de la même version\n"));
}

} // namespace
