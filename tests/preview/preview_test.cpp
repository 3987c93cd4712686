// The sources of a course while they are written: real files, the real compiler and watcher.

#include "authoring/markdown_compiler.h"
#include "coursetool/build.h"
#include "page/faces/font_book.h"
#include "preview/fault_strip.h"
#include "preview/line_at.h"
#include "preview/linter.h"
#include "preview/previewed_course.h"
#include "preview/source_watch.h"
#include "support/files.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using preview::PreviewedCourse;
using Renewed = PreviewedCourse::Renewed;
using test_support::eventually;

struct Preview : testing::Test {
    Preview() {
        write("pages/1.md", page(1, "Un.\n\nDeux."));
        write("pages/2.page", "+++\nNumeropage = 2\n+++\nA¶\nB¶\n");
        write("files/a.txt", "a");
    }

    static QByteArray page(int number, const QByteArray& text) {
        return "+++\nNumeropage = " + QByteArray::number(number) + "\n+++\n" + text + "\n";
    }
    QString path(const QString& name) const { return directory.filePath("src/" + name); }
    void write(const QString& name, const QByteArray& text) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        test_support::writeFile(path(name), text);
    }
    /// As many editors save: beside the old file, then in its place.
    void saveByRename(const QString& name, const QByteArray& text) const {
        write(name + "~neuf", text);
        std::filesystem::rename(path(name + "~neuf").toStdString(), path(name).toStdString());
    }
    bool installed(const char* name) const {
        return QFileInfo::exists(directory.filePath("out/") + QLatin1String(name));
    }

    QTemporaryDir directory;
    page::FontBook fonts;
    authoring::MarkdownCompiler compiler{fonts};
    PreviewedCourse course{path("").toStdString(), directory.filePath("out").toStdString(),
                           compiler};
};

TEST_F(Preview, compilesOnlyWhatChanged) {
    for (int i = 10; i < 20; ++i)
        write(QString::number(i).prepend("pages/") + ".md",
              page(i, "Texte " + QByteArray::number(i)));
    EXPECT_EQ(course.update(), Renewed::PagesAndFiles);
    EXPECT_EQ(course.memory().compiled(), 12);
    write("pages/12.md", page(12, "Autre."));
    EXPECT_EQ(course.update(), Renewed::Pages);
    EXPECT_EQ(course.memory().compiled(), 13);
    QFile::remove(path("pages/13.md"));
    EXPECT_EQ(course.update(), Renewed::Pages);
    EXPECT_EQ(course.memory().compiled(), 13);
    EXPECT_FALSE(course.placeOf(13, 1));
    // Saved as it was, in both ways.
    write("pages/12.md", page(12, "Autre."));
    saveByRename("pages/14.md", page(14, "Texte 14"));
    EXPECT_EQ(course.update(), Renewed::Nothing);
    EXPECT_EQ(course.memory().compiled(), 13);
}

/// Without this, a text of the same length saved within a step of the file system's clock, or with
/// the old time set back, would never be shown.
TEST_F(Preview, isNotFooledByTheTimeOfAFile) {
    ASSERT_EQ(course.update(), Renewed::PagesAndFiles);
    const std::filesystem::path file = path("pages/1.md").toStdString();
    const auto time = std::filesystem::last_write_time(file);
    for (const char* text : {"Toi.", "Lui."}) {
        write("pages/1.md", page(1, text));
        std::filesystem::last_write_time(file, time);
        EXPECT_EQ(course.update(), Renewed::Pages) << text;
        saveByRename("pages/1.md", page(1, text));
        EXPECT_EQ(course.update(), Renewed::Nothing) << text;
    }
}

/// What the installation holds is what a build of the same sources gives, to the byte.
TEST_F(Preview, isTheCourseThatABuildGives) {
    const auto builtAlike = [&] {
        const auto other = directory.filePath("autre").toStdString();
        coursetool::Report report;
        EXPECT_TRUE(
            coursetool::build(path("").toStdString(), other, report, [&] { return &compiler; }));
        for (const char* name : {"Zekx.mdb", "qekx.mdb", "a.txt", "disc/ZEKXDATA/b.txt"}) {
            const QString file = QLatin1String(name);
            EXPECT_EQ(test_support::readFile(directory.filePath("out/") + file),
                      test_support::readFile(directory.filePath("autre/") + file))
                << name;
        }
    };
    write("disc/ZEKXDATA/b.txt", "b");
    write("exercises/un/chapter.toml", "Chapitre = 1\n");
    write("exercises/un/1.md", "+++\nREFERENCE = 101\n+++\nLe [fer](réponse).\n");
    course.update();
    builtAlike();
    write("pages/1.md", page(1, "Changée."));
    write("exercises/un/1.md", "+++\nREFERENCE = 101\n+++\nLe [cuivre](réponse).\n");
    write("files/a.txt", "autre");
    QFile::remove(path("pages/2.page"));
    course.update();
    builtAlike();
}

TEST_F(Preview, looksOnlyAtWhatChangedForFaults) {
    write("pages/3.md", page(3, "[loin](page:9)"));
    write("pages/4.md", page(4, "![Un carré](carre.svg)"));
    preview::Linter linter(path("").chopped(1).toStdString(), fonts);
    const auto told = [&] {
        const auto renewed = course.update();
        EXPECT_NE(renewed, Renewed::Nothing);
        linter.follow(course.records(), renewed == Renewed::PagesAndFiles);
        const int before = linter.lookedAt();
        while (linter.lookOn()) {
        }
        QStringList all{QString::number(linter.lookedAt() - before)};
        for (const check::Finding& finding : linter.findings())
            all.append(QString::fromLatin1(finding.rule->code.data()) + ' ' +
                       QFileInfo(QString::fromStdString(finding.place.file)).fileName());
        return all.join(", ");
    };
    EXPECT_EQ(told(), "4, N401 3.md, F601 4.md");
    // The page that it leads to comes, but nothing on the page itself changes.
    write("pages/9.md", page(9, "[retour](page:1)"));
    EXPECT_EQ(told(), "1, F601 4.md");
    QFile::remove(path("pages/9.md"));
    EXPECT_EQ(told(), "0, N401 3.md, F601 4.md");
    write("files/carre.svg", "<svg width='10' height='20'><path d='M0 0h9v9z'/></svg>");
    EXPECT_EQ(told(), "4, N401 3.md");
    write("pages/3.md", page(3, "Plus de lien."));
    EXPECT_EQ(told(), "1");
}

TEST_F(Preview, keepsTheLastGoodCourseWhileThereIsAFault) {
    ASSERT_EQ(course.update(), Renewed::PagesAndFiles);
    const auto before = test_support::readFile(directory.filePath("out/Zekx.mdb"));
    write("pages/1.md", "+++\nNumeropage = 1\n"); // half a file
    EXPECT_EQ(course.update(), Renewed::Nothing);
    EXPECT_EQ(course.remarks().size(), 1U);
    EXPECT_EQ(test_support::readFile(directory.filePath("out/Zekx.mdb")), before);
    write("pages/1.md", page(1, "Mieux."));
    EXPECT_EQ(course.update(), Renewed::Pages);
    EXPECT_TRUE(course.remarks().empty());
    EXPECT_NE(test_support::readFile(directory.filePath("out/Zekx.mdb")), before);
}

TEST_F(Preview, followsTheFiles) {
    course.update();
    EXPECT_TRUE(installed("a.txt"));
    write("files/b.txt", "b");
    EXPECT_EQ(course.update(), Renewed::PagesAndFiles);
    EXPECT_TRUE(installed("b.txt"));
    QFile::remove(path("files/a.txt"));
    EXPECT_EQ(course.update(), Renewed::PagesAndFiles);
    EXPECT_FALSE(installed("a.txt"));
    EXPECT_TRUE(QFileInfo::exists(path("files/b.txt")));
}

TEST_F(Preview, showsSomethingInTheStead) {
    write("pages/1.md", "rien");
    ASSERT_EQ(course.update(), Renewed::Nothing);
    ASSERT_FALSE(installed("Zekx.mdb"));
    course.showInstead("# Des fautes\n");
    EXPECT_TRUE(installed("Zekx.mdb"));
    EXPECT_EQ(course.remarks().size(), 1U); // those of the sources
}

TEST_F(Preview, knowsTheLineOfTheSource) {
    course.update();
    const auto placeText = [&](int page, int line) {
        const auto place = course.placeOf(page, line);
        return place ? QFileInfo(QString::fromStdString(place->file)).fileName() + u':' +
                           QString::number(place->line)
                     : QString();
    };
    EXPECT_EQ(placeText(2, 2), "2.page:5");
    EXPECT_EQ(placeText(2, 0), "2.page:4"); // the title comes from no line
    EXPECT_EQ(placeText(1, 0), "1.md:1");
    EXPECT_EQ(placeText(1, 999), "1.md:6"); // the last line
    EXPECT_EQ(placeText(7, 1), "");
}

TEST_F(Preview, seesEveryWayOfSaving) {
    int told = 0;
    const preview::SourceWatch watch(path("").chopped(1), [&] { ++told; });
    const auto tells = [&](const std::function<void()>& change) {
        const int before = told;
        change();
        return eventually([&] { return told > before; });
    };
    EXPECT_TRUE(tells([&] { write("pages/1.md", page(1, "En place.")); }));
    // Twice: the second finds another file under the name than was watched at first.
    EXPECT_TRUE(tells([&] { saveByRename("pages/1.md", page(1, "Renommé.")); }));
    EXPECT_TRUE(tells([&] { write("pages/1.md", page(1, "En place, après.")); }));
    EXPECT_TRUE(tells([&] { QFile::remove(path("pages/2.page")); }));
    EXPECT_TRUE(tells([&] { write("exercises/un/chapter.toml", "Chapitre = 1\n"); }));
    EXPECT_TRUE(tells([&] { write("exercises/un/101.md", "+++\n"); }));
}

TEST_F(Preview, copiesThePlaceOfAFault) {
    QWidget window;
    preview::FaultStrip strip({10, 20, 600, 400}, &window);
    coursetool::Report report;
    report.warning({path("pages/0.md").toStdString()}, "un avertissement");
    report.fault({path("pages/é&2.md").toStdString(), 5, 7}, "une <b>faute</b>");
    strip.show(report.remarks(), path("").chopped(1).toStdString());
    EXPECT_FALSE(strip.isHidden());
    const auto lines = strip.findChildren<QAbstractButton*>();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(strip.geometry().bottom(), 419);
    lines[0]->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "pages/é&2.md:5:7");
    // More than there is room for: the faults, and how many more there are.
    for (int i = 0; i < 4; ++i)
        report.fault({path("pages/1.md").toStdString(), i, 1}, "encore");
    strip.show(report.remarks(), path("").chopped(1).toStdString());
    const auto shown = strip.findChildren<QAbstractButton*>();
    EXPECT_EQ(strip.height(), lines[0]->height() * 4);
    EXPECT_TRUE(shown.last()->accessibleName().startsWith("et 3 autres")) << shown.size();
    QGuiApplication::clipboard()->setText("rien");
    shown.last()->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "rien");
    strip.show({}, {});
    EXPECT_TRUE(strip.isHidden());
}

} // namespace
