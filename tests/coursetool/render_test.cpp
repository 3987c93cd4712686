#include "coursetool/build.h"
#include "coursetool/captured.h"
#include "coursetool/render.h"
#include "coursetool/tool_pictures.h"
#include "coursetool/trace.h"
#include "coursetool/workspace.h"
#include "look/field_pictures.h"

#include <QImage>

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

namespace {

using coursetool::RenderFormat;
using coursetool::RenderRequest;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct Render : testing::Test {
    Workspace work;
    page::FontBook fonts;
    coursetool::Report report;

    Render() {
        work.write("src/pages/1.page", "+++\nNumeropage = 1\n+++\n");
        work.write("src/exercises/a/chapter.toml",
                   "Chapitre = 3\nTitre = \"Optique\"\nNbquest = 1\n");
        work.write("src/exercises/a/7.question",
                   "+++\nREFERENCE = 307\ntype = 2\nsolution = \"10000\"\n+++\n"
                   "##EXOOP\nun¶\n##EXOOP\ndeux¶\n##EXOCK\n¶\n##EXOTX\n¶\n##EXOLIla page#7\n");
        coursetool::build(work.path("src"), work.path("out"), report);
        EXPECT_EQ(textOf(report), "");
        // Numbers that are not there, or twice, are for courses of other makers.
        writeDatabase(work.path("out/Zekx.mdb"),
                      {{u"cours",
                        {{u"Numeropage", jet::ColumnType::Long},
                         {u"titre", jet::ColumnType::Text, 255},
                         {u"fpc", jet::ColumnType::Memo}},
                        {{5, u"Cinq < six",
                          u"##LIERTvers sept#PAG007\r\n¶\r\n##LIERTnulle part#PAG999\r\n¶\r\n"
                          u"##LIERTdehors#EXE001\r\n¶\r\n##FONT01\r\nl¶\r\n"},
                         {7, u"Sept", u"##OBJILLUS\r\nSept¶\r\n"},
                         {7, u"Sept encore", u"Encore¶\r\n"},
                         {jet::Value(), u"Sans", u"Sans¶\r\n"}}}});
    }

    void draw(RenderRequest request) {
        request.course = work.path("out");
        coursetool::ToolPictures pictures(request.course, {}, report);
        coursetool::render(request, fonts, pictures, look::fieldPictures(), report);
    }
    void drawAll(RenderFormat format, const std::string& output) {
        RenderRequest request;
        request.format = format;
        request.output = work.path(output);
        draw(request);
    }
    RenderRequest one(std::optional<int> page, std::optional<int> question, RenderFormat format,
                      const std::string& output) {
        RenderRequest request;
        request.page = page;
        request.question = question;
        request.format = format;
        request.output = work.path(output);
        return request;
    }
};

TEST_F(Render, allPagesAndQuestionsGoIntoFilesOfTheirOwn) {
    drawAll(RenderFormat::Svg, "svg/new");
    drawAll(RenderFormat::Png, "png");
    EXPECT_EQ(textOf(report), "");
    EXPECT_THAT(work.files("svg/new"), ElementsAre("page-005.svg", "page-007-2.svg", "page-007.svg",
                                                   "page-sans-numero.svg", "question-307.svg"));
    EXPECT_THAT(work.files("png"), ElementsAre("page-005.png", "page-007-2.png", "page-007.png",
                                               "page-sans-numero.png", "question-307.png"));
    // Of pages with the same number a link shows the last, beyond the last none; other codes lead
    // nowhere.
    EXPECT_THAT(work.read("svg/new/page-005.svg"),
                AllOf(HasSubstr("<title>Cinq &lt; six</title>"),
                      HasSubstr("href=\"page-007-2.svg\" aria-label=\"vers sept\""),
                      Not(HasSubstr("nulle part\">")), Not(HasSubstr("dehors\">")),
                      HasSubstr(">λ</text>")));
    EXPECT_THAT(work.read("svg/new/question-307.svg"),
                AllOf(HasSubstr("<title>Optique – Question 7</title>"), HasSubstr(">deux</text>"),
                      HasSubstr("href=\"page-007-2.svg\" aria-label=\"la page\"")));
}

TEST_F(Render, twoRunsGiveTheSameBytes) {
    for (const auto& [format, first, second] :
         {std::tuple(RenderFormat::Svg, "a", "b"), std::tuple(RenderFormat::Png, "c", "d"),
          std::tuple(RenderFormat::Pdf, "e/x", "f/x")}) {
        std::filesystem::create_directories(work.path(first).parent_path());
        std::filesystem::create_directories(work.path(second).parent_path());
        drawAll(format, first);
        drawAll(format, second);
        ASSERT_TRUE(work.has(first));
        if (format == RenderFormat::Pdf) {
            EXPECT_EQ(work.read(first), work.read(second));
            EXPECT_THAT(work.read(first), testing::StartsWith("%PDF"));
            continue;
        }
        ASSERT_EQ(work.files(first), work.files(second));
        for (const std::string& file : work.files(first))
            EXPECT_EQ(work.read(std::string(first) + '/' + file),
                      work.read(std::string(second) + '/' + file))
                << file;
    }
    EXPECT_EQ(textOf(report), "");
}

TEST_F(Render, aSinglePageOrQuestionIsOneFileOfItsScale) {
    draw(one(7, {}, RenderFormat::Png, "7.png"));
    RenderRequest large = one({}, 307, RenderFormat::Png, "307.png");
    large.scale = 2;
    draw(large);
    draw(one(5, {}, RenderFormat::Svg, "5.svg"));
    draw(one(5, {}, RenderFormat::Pdf, "5.pdf"));
    EXPECT_EQ(textOf(report), "");
    EXPECT_EQ(QImage(QString::fromStdString(work.path("7.png").string())).width(), 800);
    const QImage question(QString::fromStdString(work.path("307.png").string()));
    EXPECT_EQ(question.width(), 2 * 632);
    // The first option button, 3 pixels below the pen, has a blue edge around white.
    const auto at = [&](int x, int y) { return QColor(question.pixel(2 * x, 2 * y)); };
    EXPECT_EQ(at(16 + 6, 16 + 3 + 6), QColor(Qt::white));
    EXPECT_LT(at(16 + 6, 16 + 3).red(), 120);
    EXPECT_GT(at(16 + 6, 16 + 3).blue(), at(16 + 6, 16 + 3).red() + 40);
    EXPECT_THAT(work.read("5.svg"), Not(HasSubstr("<a ")));
    EXPECT_THAT(work.read("5.pdf"), testing::StartsWith("%PDF"));
}

TEST_F(Render, faultsAreNamed) {
    draw(one(6, {}, RenderFormat::Png, "6.png"));
    EXPECT_THAT(textOf(report), HasSubstr("Zekx.mdb: aucune page ne porte le numéro 6"));
    draw(one(100'000'000, {}, RenderFormat::Png, "6.png"));
    draw(one({}, 308, RenderFormat::Png, "6.png"));
    EXPECT_THAT(textOf(report), HasSubstr("qekx.mdb: aucune question ne porte la référence 308"));
    EXPECT_EQ(report.faultCount(), 3u);
    EXPECT_FALSE(work.has("6.png"));

    report = {};
    work.write("file", "x");
    draw(one(5, {}, RenderFormat::Png, "nowhere/5.png"));
    draw(one(5, {}, RenderFormat::Pdf, "nowhere/5.pdf"));
    drawAll(RenderFormat::Svg, "file/below");
    drawAll(RenderFormat::Png, "file");
    EXPECT_EQ(report.faultCount(), 4u) << textOf(report);
    EXPECT_THAT(textOf(report), AllOf(HasSubstr("nowhere/5.png: "), HasSubstr("nowhere/5.pdf: "),
                                      HasSubstr("file/below: "), HasSubstr("file")));
    EXPECT_EQ(work.read("file"), "x");

    report = {};
    std::filesystem::remove(work.path("out/qekx.mdb"));
    drawAll(RenderFormat::Svg, "untested");
    EXPECT_EQ(textOf(report), "");
    EXPECT_EQ(work.files("untested").size(), 4u);
    draw(one({}, 307, RenderFormat::Svg, "q.svg"));
    EXPECT_THAT(textOf(report), HasSubstr("aucun test ici : qekx.mdb manque"));
}

// The window ends where the pen does, and what has no line end is never drawn.
TEST_F(Render, aSourceIsAsTallAsInTheWindowAndWhatIsLostIsTold) {
    const struct {
        const char* file;
        const char* source;
        int height; ///< of the picture
        const char* told;
    } rows[] = {
        {"a.page", "un¶\r\ndeux¶\r\n", 16 + 30, ""},
        {"a.page", "un¶\r\ndeux\r\n \r\n", 16 + 15,
         "a.page:2: avertissement : « deux » ne se voit pas : la page s’arrête au-dessus ; finir "
         "la ligne par « ¶ »\n"},
        // The word stands again in what draws nothing.
        {"a.page", "un¶\r\ndeux\r\n##TITBARdeux\r\n", 16 + 15,
         "a.page:2: avertissement : « deux » ne se voit pas"},
        {"a.page", "un¶\r\n\r\ndeux¶", 16 + 15,
         "a.page:3: avertissement : « deux¶ » ne compte pas : il manque une fin de ligne (CR LF) "
         "après\n"},
        {"a.page", "un\r\n", 16 + 15, ""}, // nothing ended: as tall as what stands there
        {"a.question", "un¶\r\ndeux\r\n", 32 + 30, ""}, // the test window shows all of it
        {"a.question", "un¶\r\n##EXOOP", 32 + 15,
         "a.question:2: avertissement : « ##EXOOP » ne compte pas"},
    };
    for (const auto& row : rows) {
        report = {};
        work.write(row.file, row.source);
        RenderRequest request = one({}, {}, RenderFormat::Png, "a.png");
        request.source = work.path(row.file);
        draw(request);
        EXPECT_EQ(QImage(QString::fromStdString(work.path("a.png").string())).height(), row.height)
            << row.source;
        if (*row.told)
            EXPECT_THAT(textOf(report), HasSubstr(row.told));
        else
            EXPECT_EQ(textOf(report), "") << row.source;
        EXPECT_FALSE(report.hasFaults());
    }
}

TEST_F(Render, whatIsLostOfACourseIsToldByPage) {
    writeDatabase(work.path("out/Zekx.mdb"),
                  {{u"cours",
                    {{u"Numeropage", jet::ColumnType::Long},
                     {u"titre", jet::ColumnType::Text, 255},
                     {u"fpc", jet::ColumnType::Memo}},
                    {{5, u"Cinq", u"a¶\r\nb¶\r\nperdu\r\n"}, {7, u"Sept", u"a¶\r\nfin"}}}});
    drawAll(RenderFormat::Svg, "all");
    EXPECT_THAT(textOf(report),
                AllOf(HasSubstr("Zekx.mdb: avertissement : page 5, ligne 3 : « perdu » ne se voit"),
                      HasSubstr("Zekx.mdb: avertissement : page 7, ligne 2 : « fin » ne compte")));
    EXPECT_THAT(work.read("all/page-005.svg"), Not(HasSubstr("perdu")));
}

/// A process that may write little to a file stands for a disc with no more room.
TEST_F(Render, aFailureLeavesTheFormerFile) {
    for (const char* name : {"7.png", "7.svg", "7.pdf"})
        work.write(name, "ancien");
    rlimit former;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{100, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    draw(one(7, {}, RenderFormat::Png, "7.png"));
    draw(one(7, {}, RenderFormat::Svg, "7.svg"));
    draw(one(7, {}, RenderFormat::Pdf, "7.pdf"));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(report.faultCount(), 3u);
    EXPECT_TRUE(report.hasFailures());
    EXPECT_THAT(textOf(report), HasSubstr("7.png: le fichier ne peut pas être écrit : le fichier "
                                          "deviendrait trop grand"));
    for (const char* name : {"7.png", "7.svg", "7.pdf"})
        EXPECT_EQ(work.read(name), "ancien") << name;
}

TEST_F(Render, allGoIntoAFolderThatIsThereAlready) {
    work.write("svg/page-005.svg", "ancien");
    work.write("svg/autre.txt", "reste");
    for (int times = 0; times < 2; ++times)
        drawAll(RenderFormat::Svg, "svg");
    EXPECT_EQ(textOf(report), "");
    EXPECT_THAT(work.files("svg"),
                ElementsAre("autre.txt", "page-005.svg", "page-007-2.svg", "page-007.svg",
                            "page-sans-numero.svg", "question-307.svg"));
    EXPECT_THAT(work.read("svg/page-005.svg"), testing::StartsWith("<"));
    EXPECT_EQ(work.read("svg/autre.txt"), "reste");
}

TEST_F(Render, aTraceOfAQuestionTellsItsFields) {
    const auto traced = [&](int reference) {
        coursetool::TraceRequest request;
        request.course = work.path("out");
        request.question = reference;
        coursetool::ToolPictures pictures(request.course, {}, report);
        return captured(
            [&](auto& out) { coursetool::trace(request, fonts, pictures, out, report); });
    };
    const std::string trace = traced(307);
    EXPECT_EQ(textOf(report), "");
    EXPECT_THAT(trace, HasSubstr(R"({"op":"field","surface":"Picture2","control":"Option1",)"
                                 R"("index":0,"x":0,"y":45,"width":270,)"));
    EXPECT_THAT(trace, HasSubstr(R"("control":"Check1","index":0)"));
    EXPECT_THAT(trace, HasSubstr(R"("caption":"la page","tag":"7")"));
    // The test window shows the last question for one that is not there.
    EXPECT_EQ(traced(999), trace);
    EXPECT_THAT(textOf(report), HasSubstr("aucune question ne porte la référence 999"));
    EXPECT_FALSE(report.hasFaults());
}

} // namespace
