// The main window read aloud, by a voice that only notes what it is given.

#include "look/picture_box.h"
#include "viewer/window_case.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include <gmock/gmock.h>

namespace {

using test_support::lines;
using test_support::page;
using testing::ElementsAre;

class ReadingAloud : public test_support::Window {
protected:
    ReadingAloud() {
        bench.cours.records[4] =
            page(5, QStringLiteral("Première ligne¶\r\n##DECLIG1\r\nv = \r\n##FRACd#t\r\n¶\r\n"));
        show(5);
    }
    /// Ctrl+Shift+L, and what the voice was then given.
    QStringList read() {
        voices.log.clear();
        press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        return voices.log;
    }
    /// The voice is through with what it was given; what it is given now.
    QString next() {
        voices.log.clear();
        voices.events.said();
        return voices.log.join(u'|');
    }
    /// The line at the foot of the window; empty when there is none.
    QString line() {
        const auto* words = bench.window.findChild<QLabel*>(QStringLiteral("outcome"));
        return words->isVisible() ? words->text() : QString();
    }

    test_support::FakeVoices& voices = bench.collaborators.voices;
};

TEST_F(ReadingAloud, saysThePageInPartsFromItsTitleOn) {
    EXPECT_EQ(voices.made, 0); // not before it is needed
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Page 5")));
    EXPECT_EQ(line(), u"Lecture à voix haute.");
    EXPECT_EQ(next(), u"Première ligne");
    EXPECT_EQ(next(), u"v égale d sur t");
    EXPECT_EQ(next(), u"");
    EXPECT_EQ(line(), u"");
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Page 5"))); // and from the beginning again
    EXPECT_EQ(voices.made, 1);
}

TEST_F(ReadingAloud, beginsWhereTextIsSelectedOrAtTheTopOfTheView) {
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Escape);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Première ligne")));
    press(Qt::Key_Escape); // ends the reading first, then the selection
    EXPECT_EQ(voices.log.last(), u"stop");
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Première ligne")));
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_THAT(read(), ElementsAre(QStringLiteral("Page 5")));

    bench.cours.records[5] = page(6, QStringLiteral("Le haut¶\r\n") + lines(50) +
                                         QStringLiteral("Au milieu¶\r\n") + lines(50));
    show(6);
    press(Qt::Key_PageDown);
    EXPECT_TRUE(read().constFirst().startsWith(u"Une ligne de texte"));
}

TEST_F(ReadingAloud, followsOnThePage) {
    bench.cours.records[5] =
        page(6, QStringLiteral("Le haut¶\r\n##DECLIG40\r\nLe bas, plus loin¶\r\n"));
    show(6);
    auto* area = bench.control<QWidget>("PictureTEXTE");
    const QImage plain = area->grab().toImage();
    read();
    next();
    EXPECT_NE(area->grab().toImage(), plain); // the part is marked
    EXPECT_EQ(scrolled(), 0);
    EXPECT_EQ(next(), u"Le bas, plus loin");
    EXPECT_GT(scrolled(), 0);
    next();
    EXPECT_EQ(area->grab().toImage(), plain);
}

TEST_F(ReadingAloud, endsWithItsKeyEscapeAnotherPageAVideoOrAWindowOverIt) {
    bench.cours.records[6] = page(7, QStringLiteral("Un film¶\r\n##VIDEOfilm.avi\r\n"));
    struct Row {
        const char* name;
        std::function<void()> end;
    };
    const Row rows[] = {
        {"its key", [this] { press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); }},
        {"Escape", [this] { press(Qt::Key_Escape); }},
        {"another page", [this] { show(2); }},
        {"a video", [this] { click("Image4_0"); }},
        {"its button", [this] { click("outcomeAction"); }},
        {"a window over it",
         [this] {
             QDialog over(&bench.window);
             QTimer::singleShot(0, &over, &QDialog::reject);
             over.exec();
         }},
    };
    for (const Row& row : rows) {
        show(7);
        ASSERT_FALSE(read().isEmpty()) << row.name;
        ASSERT_EQ(line(), u"Lecture à voix haute.") << row.name;
        row.end();
        EXPECT_EQ(voices.log.last(), u"stop") << row.name;
        EXPECT_EQ(line(), u"") << row.name;
    }
}

TEST_F(ReadingAloud, oneOfAVideoAndAVoiceIsHeard) {
    bench.window.setVideoStatus({}, true, false);
    bench.collaborators.log.clear();
    read();
    EXPECT_THAT(bench.collaborators.log, ElementsAre(QStringLiteral("video 2")));
}

TEST_F(ReadingAloud, saysSoWhereThereIsNoVoiceOrNothingToRead) {
    voices.installed = false;
    EXPECT_TRUE(read().isEmpty());
    EXPECT_TRUE(line().startsWith(u"Pas de lecture à voix haute")) << line().toStdString();

    voices.installed = true; // since then
    read();
    voices.events.cannotSpeak();
    EXPECT_TRUE(line().startsWith(u"Pas de lecture à voix haute")) << line().toStdString();
    press(Qt::Key_Escape);
    EXPECT_FALSE(voices.log.contains(QStringLiteral("stop"))); // nothing was being read
    EXPECT_FALSE(read().isEmpty());                            // tries again
    EXPECT_EQ(voices.made, 3);
    voices.events.cannotSpeak();

    bench.cours.records[5] = page(6, QString(), {{QStringLiteral("titre"), QString()}});
    show(6);
    read();
    EXPECT_EQ(line(), u"Il n’y a rien à lire ici.");
}

TEST_F(ReadingAloud, theMenuOfThePageBeginsAndEndsIt) {
    auto* area = bench.control<QWidget>("PictureTEXTE");
    for (const QString& caption :
         {QStringLiteral("Lire à voix haute"), QStringLiteral("Arrêter la lecture")}) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                                area->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(area, &asked);
        auto* menu = area->findChild<QMenu*>(QStringLiteral("pageMenu"));
        QAction* entry = menu->actions().constLast();
        EXPECT_TRUE(entry->text().startsWith(caption)) << entry->text().toStdString();
        entry->trigger();
        delete menu;
    }
    EXPECT_THAT(voices.log, ElementsAre(QStringLiteral("Page 5"), QStringLiteral("stop")));
}

} // namespace
