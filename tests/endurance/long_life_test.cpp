// The whole shell with its real windows, all day long in one process: what it has of memory, file
// descriptors and threads stays the same. ORVALENTE_LONG_LIFE=1 repeats as often as a class does in
// a year, and prints a table.

#include "app/shell_application.h"
#include "endurance/process_state.h"
#include "platform_mpv/clips.h"
#include "support/files.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <functional>

namespace {

using test_support::eventually;

/// Before the application is made: windows are zoomed where the screen has room for it.
const bool kHasRoom = qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" LARGE_SCREEN);

/// A course with what there is: pages of several kinds, a picture, a test, a video.
class SmallCourse {
public:
    SmallCourse() {
        const QDir root(directory_.path());
        for (const char* folder : {"pages", "exercises/ohm", "files"})
            root.mkpath(QStringLiteral("sources/") + QString::fromLatin1(folder));
        write("pages/1.page",
              field(1) + "##SI12\n##PIY020\n##LIERTun test#EXO003\n##PIY040\n"
                         "##LIERTun film#PAG006\n##PIY080\n##LIERTla suite#PAG002\n##PIY110\n¶\n");
        for (int number = 2; number <= 5; ++number)
            write("pages/" + QByteArray::number(number) + ".md",
                  field(number) + "# Une page\n\n" +
                      QByteArray("Du texte, *souligné*. ").repeated(40) +
                      "\n\n$U = R I$ et H~2~O\n\n| a | b |\n|---|---|\n| 1 | 2 |\n\n"
                      "![Un carré](carre.svg)\n");
        write("pages/6.page", field(6) + "##VIDEOclip.avi\n##SI12\nUn film¶\n");
        write("files/carre.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='90' height='90'>"
                                 "<rect width='90' height='90' fill='#369'/></svg>");
        write("exercises/ohm/chapter.toml", "Chapitre = 3\nTitre = \"Ohm\"\nNbquest = 2\n");
        for (const QByteArray number : {"301", "302"})
            write("exercises/ohm/" + number + ".question",
                  "+++\nREFERENCE = " + number +
                      "\ntype = 3\nsolution = \"ohm\"\n+++\n##SI12\n##EXOTX\n¶\n"
                      "+++\n##PIY020\nC’est l’ohm¶\n");
        const test_support::Clip clip{"clip", "mjpeg", "10", 20};
        QFile::rename(clip.make(directory_),
                      root.filePath(QStringLiteral("sources/files/clip.avi")));
        EXPECT_EQ(QProcess::execute(QStringLiteral(ORVALENTE_COURS),
                                    {QStringLiteral("build"), root.filePath("sources"),
                                     QStringLiteral("-o"), installed()}),
                  0);
    }

    QString installed() const { return directory_.filePath(QStringLiteral("course")); }

private:
    static QByteArray field(int number) {
        return "+++\nNumeropage = " + QByteArray::number(number) +
               "\nIndex = " + QByteArray::number(number) + "\ntitre = \"Page " +
               QByteArray::number(number) + "\"\nprecedent = true\nsuite = true\n+++\n";
    }
    void write(const QByteArray& name, const QByteArray& text) const {
        test_support::writeFile(
            directory_.filePath(QStringLiteral("sources/") + QString::fromLatin1(name)), text);
    }

    QTemporaryDir directory_;
};

class LongLife : public testing::Test {
protected:
    LongLife() {
        qputenv("ORVALENTE_NO_SOUND", "1");
        app::CommandLine line;
        line.course = course_.installed();
        shell_ = std::make_unique<app::ShellApplication>(line, 1);
        EXPECT_TRUE(shell_->start());
        window_ = top("multim");
        EXPECT_TRUE(window_);
    }

    static QWidget* top(const char* name) {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == QLatin1String(name) && each->isVisible())
                return each;
        return nullptr;
    }
    static void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    static void press(QWidget* window, const char* name) {
        auto* const button = window->findChild<QAbstractButton*>(QString::fromLatin1(name));
        ASSERT_TRUE(button && button->isVisible()) << name;
        button->click();
        settle();
    }
    /// Follows the link of that number on the page, from the top.
    void follow(qsizetype link) {
        QList<QAbstractButton*> links =
            window_->findChildren<QAbstractButton*>(QRegularExpression(QStringLiteral("Labelien")));
        links.removeIf([](const QWidget* each) { return !each->isVisible(); });
        ASSERT_LT(link, links.size());
        std::sort(links.begin(), links.end(),
                  [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });
        links[link]->click();
        settle();
    }
    /// Has that done with a window that waits for its end, once it is there.
    void soon(const std::function<QWidget*()>& find, const std::function<void(QWidget*)>& use) {
        QTimer::singleShot(1, window_, [this, find, use] {
            if (QWidget* const found = find())
                use(found);
            else
                soon(find, use);
        });
    }
    void soon(const char* name, const std::function<void(QWidget*)>& use) {
        soon([name] { return top(name); }, use);
    }
    void home() { press(window_, "Command2"); }

    /// Does it k times and k times more: afterwards there is what there was in between.
    void repeat(const char* what, int shortCount, int longCount,
                const std::function<void()>& once) const {
        const int count = qEnvironmentVariableIsSet("ORVALENTE_LONG_LIFE") ? longCount : shortCount;
        const auto half = [&] {
            for (int i = 0; i < count / 2 && !HasFailure(); ++i)
                once();
            settle();
            return ProcessState::now();
        };
        const ProcessState before = half();
        const ProcessState after = half();
        std::printf("%-20s %6d times: heap %8zu KB %+6lld, resident %8zu KB %+6lld, "
                    "descriptors %zu %+lld, threads %zu %+lld\n",
                    what, count, after.heapBytes / 1024,
                    change(after.heapBytes, before.heapBytes) / 1024, after.residentBytes / 1024,
                    change(after.residentBytes, before.residentBytes) / 1024, after.descriptors,
                    change(after.descriptors, before.descriptors), after.threads,
                    change(after.threads, before.threads));
        // Caches fill up to bounds of their own, whatever the number of times.
        constexpr long long kCaches = 512 * 1024;
        EXPECT_LT(change(after.heapBytes, before.heapBytes), kCaches);
        EXPECT_LE(after.descriptors, before.descriptors);
        EXPECT_LE(after.threads, before.threads);
    }

    QWidget* window_ = nullptr;

private:
    static long long change(std::size_t after, std::size_t before) {
        return static_cast<long long>(after) - static_cast<long long>(before);
    }

    SmallCourse course_;
    std::unique_ptr<app::ShellApplication> shell_;
};

TEST_F(LongLife, turnsPages) {
    int turn = 0;
    repeat("page turns", 160, 10'000, [this, turn]() mutable {
        switch (turn++ % 4) {
        case 0:
            home();
            break;
        case 1:
            follow(2);
            break;
        case 2:
            QTest::keyClick(window_, Qt::Key_Left, Qt::AltModifier);
            break;
        default:
            QTest::keyClick(window_, Qt::Key_Right, Qt::AltModifier);
        }
        settle();
    });
}

TEST_F(LongLife, takesTests) {
    home();
    repeat("tests", 8, 1'000, [this] {
        soon("exo", [this](QWidget* test) {
            QTest::keyClicks(test->findChild<QWidget*>(QStringLiteral("Text1")),
                             QStringLiteral("volt"));
            press(test, "command5");
            const auto asked = [] {
                return qobject_cast<QDialog*>(QApplication::activeModalWidget());
            };
            soon(asked, [](QWidget* leave) {
                for (auto* button : leave->findChildren<QAbstractButton*>())
                    if (button->text().contains(QStringLiteral("Oui")))
                        return button->click();
            });
            press(test, "Image2");
        });
        follow(0);
        EXPECT_FALSE(top("exo"));
    });
}

TEST_F(LongLife, showsVideos) {
    repeat("videos", 10, 1'000, [this] {
        home();
        follow(1);
        press(window_, "Image4_0");
        const auto* const picture = window_->findChild<QWidget*>(QStringLiteral("projo"));
        EXPECT_TRUE(eventually([&] { return picture->isVisible(); }));
    });
}

TEST_F(LongLife, opensTheCalculator) {
    repeat("calculators", 40, 1'000, [this] {
        press(window_, "Command3");
        QWidget* const machine = top("Machine");
        ASSERT_TRUE(machine);
        QTest::keyClicks(machine, QStringLiteral("2*30"));
        QTest::keyClick(machine, Qt::Key_Return);
        machine->close();
        settle();
    });
}

TEST_F(LongLife, searches) {
    repeat("searches", 20, 1'000, [this] {
        soon("coordon", [](QWidget* search) {
            QTest::keyClicks(search->focusWidget(), QStringLiteral("texte"));
            QTest::keyClick(search->focusWidget(), Qt::Key_Return);
            settle();
            search->close();
        });
        press(window_, "command4");
    });
}

TEST_F(LongLife, zooms) {
    ASSERT_TRUE(kHasRoom);
    home();
    follow(2);
    repeat("zoom steps", 20, 1'000, [this] {
        QWindow* const window = window_->windowHandle();
        QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
        settle();
        EXPECT_GT(window_->devicePixelRatio(), 1);
        QTest::keyClick(window, Qt::Key_0, Qt::ControlModifier);
        settle();
        EXPECT_EQ(window_->devicePixelRatio(), 1);
    });
}

} // namespace
