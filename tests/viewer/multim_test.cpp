#include "look/button.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/scroll_bar.h"
#include "viewer/multim.h"
#include "viewer/window_bench.h"
#include "viewer/window_case.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>
namespace {

using look::Button;
using platform::Answer;
using test_support::lines;
using test_support::page;
using test_support::Window;
using testing::ElementsAre;

TEST_F(Window, opensOnTheFirstPageWithEverythingInPlace) {
    EXPECT_TRUE(bench.started);
    EXPECT_THAT(bench.history(), ElementsAre(1));
    EXPECT_EQ(bench.window.size(), QSize(800, 600));
    struct Row {
        const char* name;
        QRect place;
        bool visible, enabled;
    };
    for (const Row& row : {
             Row{"Command2", {8, 4, 64, 56}, true, true},
             Row{"command6", {72, 4, 64, 56}, true, true},
             Row{"command5", {136, 4, 64, 56}, true, true},
             Row{"command4", {216, 4, 64, 56}, true, true},
             Row{"Command3", {280, 4, 64, 56}, true, true},
             Row{"CommandIMPRIME", {344, 4, 64, 56}, true, false},
             Row{"Command12", {424, 4, 64, 56}, true, true},
             Row{"Command13", {488, 4, 64, 56}, true, true},
             Row{"Command10", {552, 4, 64, 56}, true, true},
             Row{"Command8", {616, 4, 64, 56}, true, true},
             Row{"Command14", {728, 4, 64, 56}, true, true},
             Row{"titre", {176, 72, 600, 32}, true, true},
             Row{"PICTUREILLUS", {8, 112, 152, 360}, true, true},
             Row{"btexo", {8, 480, 152, 48}, false, true},
             Row{"avant", {8, 536, 72, 56}, true, false},
             Row{"apres", {88, 536, 72, 56}, true, false},
             Row{"framekx", {176, 120, 616, 424}, true, true},
             Row{"VScroll1", {776, 120, 16, 424}, true, true},
             Row{"Framebase", {168, 560, 624, 32}, true, true},
             Row{"avantcours", {168, 560, 152, 32}, false, true},
             Row{"suite", {640, 560, 152, 32}, true, true},
             Row{"projo", {176, 496, 320, 240}, false, true},
         }) {
        const auto* control = bench.control<QWidget>(row.name);
        ASSERT_NE(control, nullptr) << row.name;
        EXPECT_EQ(QRect(control->mapTo(&bench.window, QPoint()), control->size()), row.place)
            << row.name;
        EXPECT_EQ(control->isVisible(), row.visible) << row.name;
        EXPECT_EQ(control->isEnabled(), row.enabled) << row.name;
    }
    EXPECT_FALSE(bench.control<QWidget>("cover")->isVisible());
    const QImage shown = bench.window.grab().toImage();
    for (const QPoint ruled : {QPoint(400, 63), QPoint(208, 30), QPoint(416, 30)})
        EXPECT_EQ(shown.pixel(ruled), look::kRule) << ruled.x();
    EXPECT_EQ(bench.window.windowTitle(), QStringLiteral("Orvalente - KAROPE"));
}

TEST_F(Window, buttonsAreCalledWhatTheyDo) {
    struct Row {
        const char* name;
        QString caption, toolTip;
        QString icon = {}; ///< of the toolbar's
    };
    const auto pictureOf = [](QWidget& button) {
        return button.grab(QRect(8, 2, 48, 34)).toImage();
    };
    for (const Row& row : {
             Row{"apres", QStringLiteral("S&uivant"), QStringLiteral("Page suivante")},
             Row{"avant", QStringLiteral("&Précédent"), QStringLiteral("Page précédente")},
             Row{"suite", QStringLiteral("Page suivante"),
                 QStringLiteral("Page suivante dans ce chapitre")},
             Row{"avantcours", QStringLiteral("Page précédente"),
                 QStringLiteral("Page précédente dans ce chapitre")},
             Row{"Command2", QStringLiteral("Accueil"),
                 QStringLiteral("Afficher le sommaire général"), QStringLiteral("home")},
             Row{"command6", QStringLiteral("Ph&ysique"), QStringLiteral("Sommaire physique"),
                 QStringLiteral("physics")},
             Row{"command5", QStringLiteral("C&himie"), QStringLiteral("Sommaire chimie"),
                 QStringLiteral("chemistry")},
             Row{"Command13", QStringLiteral("C&rédits"), {}, QStringLiteral("credits")},
             Row{"Command12", QStringLiteral("Int&ernet"), {}, QStringLiteral("internet")},
             Row{"command4", QStringLiteral("&Rechercher"), QStringLiteral("Moteur de recherche"),
                 QStringLiteral("search")},
             Row{"btexo", QStringLiteral("Retrouver le test"), {}},
             Row{"Command3", QStringLiteral("&Calculatrice"), QStringLiteral("Machine à calculer"),
                 QStringLiteral("calculator")},
             Row{"CommandIMPRIME", QStringLiteral("&Imprimer"),
                 QStringLiteral("Imprimer ou configurer l'imprimante"), QStringLiteral("print")},
             Row{"Command10", QStringLiteral("&Aide"),
                 QStringLiteral("Aide pour utiliser le logiciel"), QStringLiteral("help")},
             Row{"Command8", QStringLiteral("Actualiser"), QStringLiteral("Actualiser le logiciel"),
                 QStringLiteral("update")},
             Row{"Command14", QStringLiteral("&Quitter"), QStringLiteral("Quitter l'application"),
                 QStringLiteral("quit")},
             Row{"Image4_6", {}, QStringLiteral("Retour au début")},
             Row{"Image4_4", {}, QStringLiteral("Image précédente")},
             Row{"Image4_0", {}, QStringLiteral("Lecture")},
             Row{"Image4_2", {}, QStringLiteral("Pause")},
             Row{"Image4_3", {}, QStringLiteral("Stop")},
             Row{"Image4_1", {}, QStringLiteral("Image suivante")},
             Row{"Image4_5", {}, QStringLiteral("Aller à la fin")},
             Row{"findPrevious", {}, QStringLiteral("Occurrence précédente (Maj+F3)")},
             Row{"findNext", {}, QStringLiteral("Occurrence suivante (F3)")},
             Row{"findClose", {}, QStringLiteral("Fermer la recherche (Échap)")},
         }) {
        auto* button = bench.control(row.name);
        ASSERT_NE(button, nullptr) << row.name;
        EXPECT_EQ(button->text(), row.caption) << row.name;
        EXPECT_EQ(button->toolTip(), row.toolTip) << row.name;
        if (row.icon.isEmpty())
            continue;
        Button sample({}, {Button::Kind::Toolbar, row.icon, Button::IconPlace::Top},
                      button->parentWidget());
        sample.resize(button->size());
        sample.setEnabled(button->isEnabled());
        EXPECT_EQ(pictureOf(*button), pictureOf(sample)) << row.name;
    }
}

TEST_F(Window, eachButtonDoesWhatItSays) {
    struct Row {
        const char* button;
        QString call; ///< what a neighbour was asked for, or
        QString page; ///< the page shown
    };
    for (const Row& row : {
             Row{"command6", {}, QStringLiteral("28")},
             Row{"command5", {}, QStringLiteral("30")},
             Row{"Command13", {}, QStringLiteral("161")},
             Row{"Command2", {}, QStringLiteral("1")},
             Row{"suite", {}, QStringLiteral("2")},
             Row{"avantcours", {}, QStringLiteral("1")},
             Row{"avant", {}, QStringLiteral("2")},
             Row{"apres", {}, QStringLiteral("1")},
             Row{"Command12", QStringLiteral("launch 70"), {}},
             Row{"command4", QStringLiteral("search"), {}},
             Row{"Command3", QStringLiteral("calculator"), {}},
             Row{"Command10", QStringLiteral("help"), {}},
             Row{"Command8", QStringLiteral("installation"), {}},
         }) {
        bench.collaborators.log.clear();
        click(row.button);
        if (!row.page.isEmpty())
            EXPECT_EQ(shown(), row.page) << row.button;
        else
            EXPECT_EQ(bench.collaborators.log.value(0), row.call) << row.button;
    }
}

TEST_F(Window, buttonsThatAPageDoesNotOfferDoNothing) {
    bench.collaborators.log.clear();
    for (const char* name : {"CommandIMPRIME", "avant", "apres"})
        click(name);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Backspace);
    press(Qt::Key_I, Qt::AltModifier);
    press(Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(bench.collaborators.log.isEmpty());
    EXPECT_EQ(bench.state.HistoryPos, 1);

    show(2);
    bench.collaborators.log.clear();
    click("CommandIMPRIME");
    EXPECT_THAT(bench.collaborators.log, ElementsAre(QStringLiteral("print")));
}

TEST_F(Window, pageIsAsTallAsWhatWasDrawnOnIt) {
    struct Row {
        QString source;
        int height;
    };
    // A line of 10 points is 15 pixels high.
    for (const Row& row :
         {Row{QStringLiteral("a¶\r\nb¶\r\n"), 30},
          Row{QStringLiteral("a¶\r\n##OBJILLUS\r\nb¶\r\n"), 15}, Row{QStringLiteral(""), 0}}) {
        bench.cours.records[4] = page(5, row.source);
        show(1);
        show(5);
        const int height = bench.control<QWidget>("PictureTEXTE")->height();
        EXPECT_NEAR(height, row.height, 2) << qPrintable(row.source);
    }
}

TEST_F(Window, summaryButtonFollowsThePage) {
    auto* summary = bench.control("Command2");
    EXPECT_EQ(summary->text(), QStringLiteral("Accueil"));
    show(2);
    EXPECT_EQ(summary->text(), QStringLiteral("Sommaire"));
    Button sample({}, {Button::Kind::Toolbar, QStringLiteral("summary"), Button::IconPlace::Top},
                  summary->parentWidget());
    sample.resize(summary->size());
    const QRect picture(8, 2, 48, 34);
    EXPECT_EQ(summary->grab(picture).toImage(), sample.grab(picture).toImage());
    press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("28"));
}

TEST_F(Window, searchShowsThePageChosen) {
    bench.collaborators.search.window.whileOpen = [this] { bench.state.SearchChosenPage = 30; };
    click("command4");
    EXPECT_EQ(shown(), QStringLiteral("30"));
}

TEST_F(Window, returnToTheTestIsOneButton) {
    bench.state.ExerciseReturnPage = 12;
    bench.actions.run(QStringLiteral("EXO001"));
    for (const char* name : {"btexo", "Label16"}) {
        EXPECT_TRUE(bench.control<QWidget>(name)->isVisible()) << name;
        show(1);
        click(name);
        EXPECT_EQ(shown(), QStringLiteral("12")) << name;
    }
    bench.state.ExerciseReturnPage = 0;
    click("btexo");
    EXPECT_FALSE(bench.control<QWidget>("btexo")->isVisible());
    EXPECT_EQ(shown(), QStringLiteral("12"));
}

TEST_F(Window, updateWaitsUntilNoModuleRuns) {
    bench.collaborators.updates.possible = false;
    click("Command8");
    EXPECT_FALSE(bench.collaborators.log.contains(QStringLiteral("installation")));
}

TEST_F(Window, pagesLeaveNothingBehind) {
    bench.cours.records[4] =
        page(5, QStringLiteral("##OBJILLUS\r\nIci¶\r\n##OBJTIT\r\nAutre¶\r\n##TITBARX\r\n"));
    auto* illustration = bench.control<QWidget>("PICTUREILLUS");
    const auto text = [&](const char* name) {
        return static_cast<look::PictureBox*>(bench.control<QWidget>(name))
            ->readableText()
            .trimmed();
    };
    const QImage blank = illustration->grab().toImage();
    show(5);
    EXPECT_EQ(text("titre"), QStringLiteral("Autre"));
    EXPECT_EQ(text("PICTUREILLUS"), QStringLiteral("Ici"));
    EXPECT_NE(illustration->grab().toImage(), blank);
    EXPECT_TRUE(bench.window.windowTitle().endsWith(u'X'));
    show(2);
    EXPECT_EQ(text("titre"), QStringLiteral("Page 2"));
    EXPECT_EQ(text("PICTUREILLUS"), QString());
    EXPECT_EQ(illustration->grab().toImage(), blank);
    EXPECT_EQ(bench.window.windowTitle(), QStringLiteral("Orvalente - KAROPE"));
}

TEST_F(Window, longTitlesStayWithinTheBand) {
    for (const int words : {1, 5, 40}) {
        const QString title = QStringLiteral("La réfraction ").repeated(words).trimmed();
        bench.cours.records[4] = page(5, {}, {{QStringLiteral("titre"), title}});
        show(5);
        const auto& operations = bench.window.shownPage().recording.operations();
        double right = 0;
        for (const auto& operation : operations)
            if (const auto* text = std::get_if<page::TextOperation>(&operation)) {
                right = std::max(right, text->x + text->width);
                EXPECT_GE(text->font.points, 13 * 0.75) << "still readable";
            }
        EXPECT_GT(right, 0) << words;
        EXPECT_LE(right, 600 * 15) << words;
        EXPECT_EQ(bench.control<QWidget>("titre")->toolTip(), words == 40 ? title : QString());
    }
}

TEST_F(Window, videoFrameMakesTheViewShorterUntilTheNextPage) {
    using Layout = viewer::Multim::VideoLayout;
    auto* view = bench.control<QWidget>("framekx");
    bench.window.setVideoLayout(Layout::Closed);
    EXPECT_EQ(view->height(), 352);
    bench.collaborators.log.clear();
    for (const int index : {6, 4, 0, 2, 3, 1, 5})
        click(qPrintable(QStringLiteral("Image4_%1").arg(index)));
    EXPECT_THAT(bench.collaborators.log,
                ElementsAre(QStringLiteral("video 6"), QStringLiteral("video 4"),
                            QStringLiteral("video 0"), QStringLiteral("video 2"),
                            QStringLiteral("video 3"), QStringLiteral("video 1"),
                            QStringLiteral("video 5")));
    const auto placeOfPlay = [this] {
        auto* play = bench.control("Image4_0");
        return QRect(play->mapTo(&bench.window, QPoint()), play->size());
    };
    EXPECT_EQ(placeOfPlay(), QRect(629, 496, 31, 32));
    bench.window.setVideoLayout(Layout::Open);
    EXPECT_EQ(placeOfPlay(), QRect(629, 496, 31, 32));
    EXPECT_EQ(view->height(), 160);
    EXPECT_EQ(bench.control<QWidget>("projo")->mapTo(&bench.window, QPoint()), QPoint(176, 304));
    show(2);
    EXPECT_EQ(view->height(), 424);
    EXPECT_FALSE(bench.control<QWidget>("projo")->isVisible());
}

TEST_F(Window, reportsShowUntilTheNextPage) {
    auto* words = bench.control<QLabel>("outcome");
    auto* chapter = bench.control<QLabel>("status");
    bench.window.report(QStringLiteral("Le module est introuvable."));
    EXPECT_EQ(words->text(), QStringLiteral("Le module est introuvable."));
    bench.window.report(QStringLiteral("Un très long message. ").repeated(20));
    EXPECT_LE(words->heightForWidth(words->width()), words->height());
    EXPECT_EQ(words->toolTip(), QStringLiteral("Un très long message. ").repeated(20));
    EXPECT_FALSE(chapter->isVisible());
    show(2);
    EXPECT_FALSE(words->isVisible());
    EXPECT_EQ(chapter->text(), QStringLiteral("Dans ce chapitre"));
    EXPECT_TRUE(chapter->isVisible());
    show(3);
    EXPECT_FALSE(chapter->isVisible());

    // What was printed has a button that shows it; a warning afterwards has none.
    int shown = 0;
    bench.window.tellPrinted(QStringLiteral("1 page écrite."), [&] { ++shown; });
    auto* open = bench.control<QPushButton>("outcomeAction");
    QTest::mouseClick(open, Qt::LeftButton);
    EXPECT_EQ(shown, 1);
    EXPECT_LE(words->geometry().right(), open->geometry().left());
    bench.window.report(QStringLiteral("Le module est introuvable."));
    EXPECT_FALSE(open->isVisible());
}

TEST_F(Window, movingThePointerResetsTheLinks) {
    for (const char* name : {"framekx", "Framebase", "titre", "PictureTEXTE", "PICTUREILLUS"}) {
        bench.collaborators.links.highlightResets = 0;
        QTest::mouseMove(bench.control<QWidget>(name), {5, 5});
        QTest::mouseMove(bench.control<QWidget>(name), {6, 6});
        EXPECT_GT(bench.collaborators.links.highlightResets, 0) << name;
        EXPECT_EQ(bench.collaborators.links.lastKept, viewer::PageLinks::kNone);
    }
}

TEST_F(Window, leavingAsksFirst) {
    bench.messageBoxes.answers = {Answer::Cancel};
    click("Command14");
    ASSERT_EQ(bench.messageBoxes.messages.size(), 1U);
    EXPECT_EQ(bench.messageBoxes.messages[0],
              (platform::Message{
                  QStringLiteral("Quitter"), QStringLiteral("Attention: sortie du logiciel."),
                  platform::Message::Icon::Question, platform::Message::Buttons::OkCancel}));
    EXPECT_TRUE(bench.window.isVisible());
    EXPECT_TRUE(bench.collaborators.log.isEmpty());

    bench.messageBoxes.answers = {Answer::Ok};
    press(Qt::Key_Q, Qt::AltModifier);
    EXPECT_FALSE(bench.window.isVisible());
    EXPECT_THAT(bench.collaborators.log,
                ElementsAre(QStringLiteral("close video"), QStringLiteral("exit screen")));
}

TEST_F(Window, workDoesNotStartAnewAndClosingWaitsForItsEnd) {
    bench.messageBoxes.answers = {Answer::Ok};
    bench.collaborators.search.window.whileOpen = [this] {
        bench.collaborators.log.clear();
        click("Command3");
        press(Qt::Key_H, Qt::AltModifier);
        bench.window.close();
        EXPECT_TRUE(bench.collaborators.log.isEmpty());
        EXPECT_TRUE(bench.window.isVisible());
    };
    click("command4");
    EXPECT_FALSE(bench.window.isVisible());
    EXPECT_EQ(shown(), QStringLiteral("1"));
}

TEST_F(Window, screenReadersFindNamesAndThePagesText) {
    for (const QWidget* control : bench.window.findChildren<QAbstractButton*>()) {
        auto* reader = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
        const QString name = reader->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty() || name.contains(u'(')) // keys are not part of a name
            << qPrintable(control->objectName());
        EXPECT_EQ(reader->role(), QAccessible::Button) << qPrintable(control->objectName());
    }
    show(2);
    auto* reader = QAccessible::queryAccessibleInterface(bench.control<QWidget>("PictureTEXTE"));
    EXPECT_EQ(reader->text(QAccessible::Name), QStringLiteral("Page 2"));
    EXPECT_EQ(reader->text(QAccessible::Description).count(QStringLiteral("Une ligne de texte")),
              3);
    auto* text = reader->textInterface();
    ASSERT_NE(text, nullptr);
    int start = 0;
    int end = 0;
    EXPECT_EQ(text->textAtOffset(5, QAccessible::WordBoundary, &start, &end).trimmed(),
              QStringLiteral("ligne"));
    EXPECT_EQ(text->text(0, text->characterCount()), reader->text(QAccessible::Description));
    auto* bar = QAccessible::queryAccessibleInterface(bench.control<QWidget>("VScroll1"));
    EXPECT_EQ(bar->role(), QAccessible::ScrollBar);
}

TEST_F(Window, thePageKeepsTheKeyboardOverAPageChange) {
    auto* text = bench.control<QWidget>("PictureTEXTE");
    text->setFocus(Qt::TabFocusReason);
    press(Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("30"));
    EXPECT_TRUE(text->hasFocus());
}

TEST_F(Window, showsTheHourglassWhileItWorks) {
    QList<Qt::CursorShape> shapes;
    const auto note = [&] { shapes.append(bench.window.cursor().shape()); };
    bench.collaborators.links.whileResetting = note;
    click("suite");
    EXPECT_THAT(shapes, ElementsAre(Qt::WaitCursor));
    EXPECT_EQ(bench.window.cursor().shape(), Qt::ArrowCursor);

    // While a page is drawn, whoever asked for it.
    shapes.clear();
    bench.collaborators.links.whileResetting = {};
    bench.pictures.whileLooking = note;
    bench.cours.records[4] = page(5, QStringLiteral("##IMAvoilier.bmp\r\n¶\r\n"));
    show(5);
    EXPECT_THAT(shapes, ElementsAre(Qt::WaitCursor));
    EXPECT_EQ(bench.window.cursor().shape(), Qt::ArrowCursor);
}

} // namespace
