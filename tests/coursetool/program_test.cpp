// The program itself, as a child process: what it prints where, and how it ends.

#include "coursetool/program.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(Program, convertsAndBuildsMarkdown) {
    work.write("src/pages/2.md",
               "+++\nNumeropage = 2\ntitre = \"Deux\"\n+++\n# Deux\n\nUn *mot*.\n");
    work.write("src/exercises/a/chapter.toml", "Chapitre = 1\nTitre = \"T\"\nNbquest = 2\n");
    work.write("src/exercises/a/1.md", "+++\nREFERENCE = 101\n+++\nQui ?\n\n- [ ] a\n- [x] b\n");
    work.write("src/exercises/a/2.md",
               "+++\nREFERENCE = 102\n+++\nLe [fer](réponse).\n\n## Si c’est faux\n\nRelire.\n");
    const Outcome page = run("convert src/pages/2.md");
    EXPECT_EQ(page.code, 0) << page.err;
    EXPECT_THAT(page.out, StartsWith("+++\nNumeropage = 2\ntitre = \"Deux\"\n+++\n##TITBARDeux\n"));
    EXPECT_THAT(page.out, HasSubstr("Un \n##ITA1\nmot\n##ITA0\n.¶\n"));
    const Outcome question = run("convert src/exercises/a/2.md");
    EXPECT_EQ(question.code, 0) << question.err;
    EXPECT_THAT(question.out,
                StartsWith("+++\nREFERENCE = 102\ntype = 3\nsolution = \"fer\"\n+++\n##SI12\n"));

    ASSERT_EQ(run("build src -o md").err, "");
    // What `convert` prints builds into the very same databases.
    for (const char* name : {"pages/2", "exercises/a/1", "exercises/a/2"}) {
        const std::string file = std::string("src/") + name;
        const bool isPage = file.find("pages") != std::string::npos;
        const Outcome converted =
            run({QStringLiteral("convert"), QString::fromStdString(file + ".md")});
        work.write(file + (isPage ? ".page" : ".question"), converted.out);
        std::filesystem::remove(work.path(file + ".md"));
    }
    ASSERT_EQ(run("build src -o plain").err, "");
    EXPECT_EQ(work.rows("md/Zekx.mdb", "cours"), work.rows("plain/Zekx.mdb", "cours"));
    EXPECT_EQ(work.rows("md/qekx.mdb", "Contenu"), work.rows("plain/qekx.mdb", "Contenu"));
}

TEST_F(Program, namesTheMarkdownLineOfAFault) {
    work.write("src/pages/2.md", "+++\nNumeropage = 2\n+++\n\nVoir [ici](page:x).\n");
    work.write("src/exercises/a/chapter.toml", "Chapitre = 1\n");
    work.write("src/exercises/a/1.md",
               "+++\nREFERENCE = 101\nsolution = \"x\"\n+++\n[fer](réponse)\n");
    const Outcome built = run("build src -o out");
    EXPECT_EQ(built.code, 1);
    EXPECT_THAT(built.err, HasSubstr("src/pages/2.md:5:7: « page:x »"));
    EXPECT_THAT(built.err, HasSubstr("src/exercises/a/1.md:3:"));
    EXPECT_FALSE(work.has("out/Zekx.mdb"));
    EXPECT_EQ(run("convert src/pages/2.md").code, 1);
    EXPECT_EQ(run("convert src/pages/2.md").out, "");
    EXPECT_EQ(run("convert nulle-part.md").code, 2);
}

TEST_F(Program, buildsDumpsTracesAndExtracts) {
    const Outcome built = run("build src -o out");
    EXPECT_EQ(built.code, 0);
    EXPECT_EQ(built.out + built.err, "");
    const Outcome dumped = run("dump out/Zekx.mdb cours");
    EXPECT_EQ(dumped.code, 0);
    EXPECT_THAT(dumped.out, StartsWith("{\"Numeropage\":1,"));
    const Outcome traced = run("trace out --page 1");
    EXPECT_EQ(traced.code, 0) << traced.err;
    EXPECT_EQ(traced.err, "");
    EXPECT_THAT(traced.out, HasSubstr("\"surface\":\"titre\""));
    EXPECT_THAT(traced.out, HasSubstr("\n{\"op\":\"end\","));
    const Outcome rendered = run("render out --page 1 -o 1.png --scale 1.5");
    EXPECT_EQ(rendered.code, 0) << rendered.err;
    EXPECT_EQ(rendered.out + rendered.err, "");
    EXPECT_THAT(work.read("1.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(run("render out --all -o all.PDF").code, 0);
    EXPECT_THAT(work.read("all.PDF"), StartsWith("%PDF"));
    const Outcome printed = run("print out --page 1 -o sheets.pdf");
    EXPECT_EQ(printed.code, 0) << printed.err;
    EXPECT_THAT(work.read("sheets.pdf"), StartsWith("%PDF"));
    EXPECT_EQ(run("extract out -o back").code, 0);
    EXPECT_THAT(run("extract out -o back").err, HasSubstr("« back » n’est pas vide"));
    EXPECT_EQ(run("extract out -o back --force").code, 0);
    EXPECT_EQ(run("extract out -o out/files --force").code, 2);
    EXPECT_THAT(work.files("back"), testing::ElementsAre("files/a.txt", "pages/1-1.page"));
}

TEST_F(Program, endsWithOneForFaultsAndNamesThem) {
    work.write("src/pages/2.page", "+++\nNumeropage = 1\nfaux = 2\n+++\n");
    const Outcome built = run("build src -o out");
    EXPECT_EQ(built.code, 1);
    EXPECT_EQ(built.out, "");
    EXPECT_THAT(built.err, HasSubstr("src/pages/2.page:3:1: champ inconnu « faux »"));
    EXPECT_THAT(built.err, HasSubstr("src/pages/2.page:2:14: "));
    work.write("bad.mdb", std::string(8192, 'x'));
    EXPECT_EQ(run("dump bad.mdb").code, 1);
    EXPECT_EQ(run("extract src -o back").code, 1);
    EXPECT_EQ(run("trace src --page 1").code, 1);
    EXPECT_EQ(run("render src --page 1 -o 1.png").code, 1);
    work.write("latin1.txt", "\xE9\r\n");
    EXPECT_EQ(run("trace --source latin1.txt").code, 1);
}

TEST_F(Program, endsWithTwoForWrongCallsAndDoesNothing) {
    work.write("some/file", "x");
    work.write("page.txt", "x¶\r\n");
    for (const char* call : {"",
                             "bidule",
                             "build",
                             "build src",
                             "build nowhere -o out",
                             "build src -o",
                             "build src -o a -o b",
                             "build src other -o out",
                             "build src -o src/files/x",
                             "build --chose src -o out",
                             "extract src",
                             "extract src -o some",
                             "dump",
                             "dump src",
                             "dump nowhere.mdb",
                             "trace",
                             "trace src",
                             "trace src --page",
                             "trace src --page x",
                             "trace src --page 1x",
                             "trace --source nowhere",
                             "trace src --source page.txt",
                             "trace --page 1 --source page.txt",
                             "trace --source page.txt --drive",
                             "trace --source page.txt --drive disc",
                             "trace --source page.txt --drive 1=src",
                             "search src",
                             "search nowhere mot",
                             "symbols nowhere"}) {
        const Outcome outcome = run(call);
        EXPECT_EQ(outcome.code, 2) << call;
        EXPECT_EQ(outcome.out, "") << call;
        EXPECT_THAT(outcome.err, StartsWith("orvalente-cours : ")) << call;
    }
    EXPECT_FALSE(work.has("out"));
    run("build src -o out");
    EXPECT_EQ(run("dump out/Zekx.mdb autre").code, 2);
}

TEST_F(Program, takesForAWordWhatLooksLikeAnOptionOrASubcommand) {
    work.write("src/pages/2.page",
               "+++\nNumeropage = 2\ntitre = \"Deux\"\nmoteur = true\n+++\n-38 build¶\n");
    ASSERT_EQ(run("build src -o out").code, 0);
    for (const char* call : {"search out -- -38", "search out --all-words -- build -38",
                             "search -- out build", "search out build", "-- search out build"})
        EXPECT_EQ(run(call).out, "2\tDeux\n") << call;
    EXPECT_EQ(run("search out -- --all-words").code, 0);
    EXPECT_EQ(run("answer calc calc").out, "juste\n");
    EXPECT_EQ(run("calc -- -3").out, run("calc -3").out);
    EXPECT_EQ(run("trace -- out --page 1").code, 2);
    work.write("-x/pages/1.page", work.read("src/pages/1.page"));
    EXPECT_EQ(run("build -o other -- -x").code, 0);
    EXPECT_TRUE(work.has("other/Zekx.mdb"));
}

TEST_F(Program, tellsAFullDiscFromFaultsOfTheCourse) {
    ASSERT_EQ(run("build src -o out").code, 0);
    work.write("page.txt", "x¶\r\n");
    for (const char* call :
         {"dump out/Zekx.mdb", "dump out/Zekx.mdb cours", "trace out --page 1", "symbols out",
          "calc 1+1", "answer a a", "--help", "trace --source page.txt"}) {
        const Outcome outcome = run(call, QStringLiteral("/dev/full"));
        EXPECT_EQ(outcome.code, 74) << call;
        EXPECT_EQ(outcome.err,
                  "sortie standard: tout n’a pas pu être écrit : le disque est plein\n")
            << call;
    }
    for (const char* call :
         {"render out --page 1 --format png -o /dev/full",
          "render out --page 1 --format svg -o /dev/full",
          "render out --page 1 --format pdf -o /dev/full", "print out --page 1 -o /dev/full"}) {
        const Outcome outcome = run(call);
        EXPECT_EQ(outcome.code, 74) << call;
        EXPECT_THAT(outcome.err, HasSubstr("/dev/full: ")) << call;
        EXPECT_THAT(outcome.err, testing::EndsWith("le disque est plein\n")) << call;
    }
    EXPECT_EQ(run("render out --page 1 --format png -o /dev/null").code, 0);
    EXPECT_THAT(run("render out --page 1 --format svg -o /dev/stdout").out, StartsWith("<"));
    EXPECT_EQ(run("build src -o /dev/full/out").code, 74);
}

TEST_F(Program, waitsForNoPipe) {
    ASSERT_EQ(mkfifo(work.path("tube").c_str(), 0600), 0);
    for (const char* call : {"dump tube", "trace --source tube", "render --source tube -o a.png"}) {
        const Outcome outcome = run(call);
        EXPECT_EQ(outcome.code, 1) << call;
        EXPECT_THAT(outcome.err, HasSubstr("ce n’est pas un fichier ordinaire")) << call;
    }
}

/// What a course says is plain text, whoever shows it.
TEST_F(Program, letsNoCourseSteerTheTerminal) {
    work.write("src/pages/2.page", "+++\nNumeropage = 2\ntitre = \"\\u001b[31m\\u009bm\"\n"
                                   "moteur = true\n+++\nA mot\x1B[2J\n");
    ASSERT_EQ(run("build src -o out").code, 0);
    EXPECT_EQ(run("search out mot").out, "2\t�[31m�m\n");
    // Byte by byte into a file, without control characters on a terminal.
    EXPECT_THAT(run("dump out/Zekx.mdb cours").out, HasSubstr("\xC2\x9Bm"));
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(grantpt(master) | unlockpt(master), 0);
    const QString terminal = QString::fromLocal8Bit(ptsname(master));
    const int slave = open(qPrintable(terminal), O_RDWR | O_NOCTTY); // keeps what was written
    EXPECT_EQ(run("dump out/Zekx.mdb cours", terminal).code, 0);
    std::string shown(4096, '\0');
    shown.resize(static_cast<std::size_t>(read(master, shown.data(), shown.size())));
    close(slave);
    close(master);
    EXPECT_THAT(shown, HasSubstr("\\u001b[31m�m"));
    work.write("src/pages/\x1B]0;x\x07.page", "no page");
    const Outcome faulty = run("build src -o out");
    EXPECT_THAT(faulty.err, HasSubstr("src/pages/�]0;x�.page:1:1: "));
}

TEST_F(Program, drawsBareSourcesOfPagesAndQuestions) {
    work.write("a.src", "##LIERTa#PAG001\r\nb¶\r\n");
    work.write("a.question", "##EXOOP\r\nb¶\r\n");
    for (const char* source : {"a.src", "a.question"}) {
        const Outcome drawn =
            run({"render", "--source", source, "-o", QString(source) + QStringLiteral(".svg")});
        EXPECT_EQ(drawn.code, 0) << drawn.err;
    }
    EXPECT_THAT(work.read("a.src.svg"), HasSubstr(">a</text>"));
    EXPECT_THAT(work.read("a.question.svg"), HasSubstr(">b</text>"));
    // The choice is there as a drawing, the link has nowhere to lead.
    EXPECT_THAT(work.read("a.question.svg"), HasSubstr("<image"));
    EXPECT_THAT(work.read("a.src.svg"), Not(HasSubstr("href")));
    EXPECT_EQ(run("render --source nowhere -o a.png").code, 2);
    EXPECT_EQ(run("render src --source a.src -o a.png").code, 2);
}

TEST_F(Program, judgesAnswers) {
    EXPECT_EQ(run({"answer", "energie", "L’Énergie"}).out, "juste\n");
    const Outcome wrong = run("answer masse poids");
    EXPECT_EQ(wrong.out, "faux\n");
    EXPECT_EQ(wrong.code, 1);
    EXPECT_EQ(run("answer masse").code, 2);
    EXPECT_EQ(run("answer --batch masse").code, 2);
    EXPECT_EQ(run("print src -o a.pdf").code, 2);
}

TEST_F(Program, searchesThePagesAsTheWindowDoes) {
    const auto page = [&](const char* file, const std::string& front, const char* source) {
        work.write(std::string("cours/pages/") + file,
                   "+++\nNumeropage = " + front + "\n+++\n" + source + "\n");
    };
    page("1.page", "1\ntitre = \"Un\"\nmoteur = true", "Énergie, chaleur¶");
    page("2.page", "20\ntitre = \"L’énergie\\tet\"\nmoteur = true", "Énergie, masse¶");
    page("3.page", "3\ntitre = \"Éteint\"\nmoteur = false", "Énergie¶");
    page("4.page", "4\nmoteur = true", "Une MASSE au repos, sans energie¶");
    ASSERT_EQ(run("build cours -o out").code, 0);
    const struct {
        QStringList arguments;
        const char* found;
    } rows[] = {
        {{"énergie"}, "20\tL’énergie et\n"},
        {{"energie"}, "4\t\n"},
        {{"--ignore-accents", "Energie"}, "20\tL’énergie et\n4\t\n"},
        {{"masse", "énergie"}, "20\tL’énergie et\n4\t\n"},
        {{"masse;énergie", "--all-words"}, "20\tL’énergie et\n"},
        {{"absent"}, ""},
    };
    for (const auto& [arguments, found] : rows) {
        const Outcome outcome = run(QStringList{"search", "out"} + arguments);
        EXPECT_EQ(outcome.out, found) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.code, 0);
    }
    EXPECT_EQ(
        run("search out --json masse").out,
        "{\"Numeropage\":20,\"titre\":\"L’énergie\\tet\"}\n{\"Numeropage\":4,\"titre\":\"\"}\n");
    const Outcome tooShort = run("search out ?x");
    EXPECT_EQ(tooShort.out, "");
    EXPECT_THAT(tooShort.err, HasSubstr("avertissement : rien à chercher"));
    EXPECT_EQ(tooShort.code, 0);
    const Outcome none = run("search src énergie");
    EXPECT_EQ(none.code, 1);
    EXPECT_THAT(none.err, HasSubstr("aucun cours ici : Zekx.mdb manque"));
}

TEST_F(Program, listsSymbolsAndTracesWithDrives) {
    const Outcome listed = run("symbols src");
    EXPECT_EQ(listed.code, 0) << listed.err;
    EXPECT_THAT(listed.out, HasSubstr("\nLK\tLK-lien.svg\tOrvalente\n"));
    work.write("cours/symbols/Zz-le \"mien\".svg", "");
    EXPECT_THAT(
        run("symbols cours --json").out,
        testing::AllOf(
            HasSubstr("{\"key\":\"LK\",\"file\":\"LK-lien.svg\",\"folder\":null}\n"),
            HasSubstr("\"file\":\"Zz-le \\\"mien\\\".svg\",\"folder\":\"cours/symbols\"}\n")));
    work.write("page.txt", "##IXAfig.svg\r\n");
    work.write("volume/ZEKXDATA/fig.svg",
               "<svg width='10' height='20'><path d='M0 0h9v9z'/></svg>");
    const Outcome traced = run("trace --source page.txt --drive X=src --drive y=volume");
    EXPECT_EQ(traced.code, 0);
    EXPECT_EQ(traced.err, "");
    EXPECT_THAT(traced.out, HasSubstr(R"("width":150,"height":300,"name":"fig.svg")"));
    const Outcome missing = run("trace --source page.txt");
    EXPECT_EQ(missing.code, 0);
    EXPECT_THAT(missing.err, HasSubstr("« fig.svg » : image introuvable"));
}

TEST_F(Program, findsPicturesBesideASourceWhateverItsPathLooksLike) {
    work.write("m.src", "##IXAfig.svg\r\n");
    work.write("fig.svg", "<svg width='10' height='20'><path d='M0 0h9v9z'/></svg>");
    const std::string whole = work.path("m.src").string();
    for (const std::string& source : {std::string("m.src"), std::string("./m.src"), whole}) {
        const QString name = QString::fromStdString(source);
        const Outcome traced = run({"trace", "--source", name});
        EXPECT_EQ(traced.err, "") << source;
        EXPECT_THAT(traced.out, HasSubstr(R"("width":150,"height":300,"name":"fig.svg")"));
        const Outcome drawn = run({"render", "--source", name, "-o", "m.svg"});
        EXPECT_EQ(drawn.err, "") << source;
        EXPECT_THAT(work.read("m.svg"), HasSubstr("<image"));
    }
}

TEST_F(Program, drawsASourceInMarkdown) {
    const std::string picture = "<svg width='10' height='20'><path d='M0 0h9v9z'/></svg>";
    work.write("src/files/fig.svg", picture);
    work.write("seul/fig.svg", picture);
    const std::string text = "+++\nNumeropage = 2\ntitre = \"Le prisme\"\n+++\nUn mot.\n\n"
                             "![Une figure](fig.svg)\n";
    for (const char* name : {"src/pages/2.md", "seul/page.md"}) {
        work.write(name, text);
        const Outcome traced = run({"trace", "--source", name});
        EXPECT_EQ(traced.err, "") << name;
        EXPECT_EQ(traced.code, 0) << name;
        EXPECT_THAT(traced.out, testing::AllOf(HasSubstr(R"("text":"Le prisme")"),
                                               HasSubstr(R"("name":"fig.svg")")));
        const Outcome drawn = run({"render", "--source", name, "-o", "page.svg"});
        EXPECT_EQ(drawn.err, "") << name;
        EXPECT_THAT(work.read("page.svg"), HasSubstr("<image"));
    }
    work.write("src/exercises/a/1.md",
               "+++\nREFERENCE = 101\n+++\nVrai ?\n\n- [x] oui\n- [ ] non\n");
    EXPECT_THAT(run("trace --source src/exercises/a/1.md").out, HasSubstr(R"("op":"field")"));
    work.write("seul/page.md", "+++\nNumeropage = 2\n+++\n$\\inconnu$\n");
    for (const char* call :
         {"trace --source seul/page.md", "render --source seul/page.md -o f.svg"}) {
        const Outcome wrong = run(call);
        EXPECT_EQ(wrong.code, 1) << call;
        EXPECT_THAT(wrong.err, testing::StartsWith("seul/page.md:4:")) << call;
    }
    EXPECT_FALSE(work.has("f.svg"));
}

TEST_F(Program, saysThatNothingIsDrawnOfASourceWithOtherLineEnds) {
    for (const char* text : {"Un¶\nDeux¶\n", "Un¶", "Un¶\rDeux¶\r"})
        for (const char* name : {"a.src", "a.question"}) {
            work.write(name, text);
            const Outcome drawn = run({"render", "--source", name, "-o", "a.png"});
            EXPECT_EQ(drawn.code, 1) << text;
            EXPECT_THAT(drawn.err, HasSubstr(": rien n’en est dessiné : aucune ligne ne finit"));
            EXPECT_FALSE(work.has("a.png"));
            EXPECT_EQ(run({"trace", "--source", name}).code, 1) << text;
        }
    work.write("empty.src", "");
    EXPECT_EQ(run("render --source empty.src -o a.png").code, 0);
}

TEST_F(Program, checksMendsAndExplains) {
    const Outcome clean = run("check src");
    EXPECT_EQ(clean.code, 0) << clean.out;
    EXPECT_EQ(clean.out + clean.err, "rien à redire\n");
    work.write("src/pages/1.page",
               "+++\nNumeropage = 1\ntitre = \"Un\"\n+++\n##SI9\nA¶\n##LIERTlà#PAG777\n¶\n");
    const Outcome wrong = run("check src --json");
    EXPECT_EQ(wrong.code, 1);
    EXPECT_THAT(wrong.out, StartsWith("{\"code\":\"L104\","));
    EXPECT_EQ(run("check src --ignore L104,N401").code, 0);
    const Outcome mended = run("check src --fix");
    EXPECT_EQ(mended.code, 1);
    EXPECT_THAT(mended.out, StartsWith("1 ligne corrigée\nsrc/pages/1.page:7:1: faute : "));
    EXPECT_THAT(work.read("src/pages/1.page"), HasSubstr("##SI09\n"));
    EXPECT_THAT(run("check --explain N401").out, StartsWith("N401 (cible-sans-page), faute : "));
    EXPECT_THAT(run("check --explain toutes").out, HasSubstr("\nQ708  "));
    for (const char* call : {"check", "check nulle-part", "check src --format xml",
                             "check src --json --format sarif", "check --explain X001"})
        EXPECT_EQ(run(call).code, 2) << call;
    // What makes a page wrong does not keep it from being built.
    const Outcome built = run("build src -o out");
    EXPECT_EQ(built.code, 0);
    EXPECT_THAT(built.err, StartsWith("src/pages/1.page:7:1: avertissement : "));
    EXPECT_THAT(built.err, HasSubstr("[N401]\n"));
    EXPECT_EQ(run("check out").code, 1);
    EXPECT_EQ(run("check out --fix").code, 2);
}

} // namespace
