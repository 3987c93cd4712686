#include "exercises/exo_case.h"
#include "exercises/exo_opener.h"
#include "exercises/small_test.h"
#include "look/scroll_bar.h"
#include "support/plain_words.h"

#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

namespace exercises::test {
namespace {

TEST_F(Test, aRightAnswerLeadsToTheNextQuestion) {
    openAt(1);
    EXPECT_EQ(control<QLabel>("Label2").text(), u"Les milieux");
    EXPECT_FALSE(control("command6").isVisible());
    click("Check1_0");
    // A click on the words of a choice, 60 pixels right of its box, counts as one on the box.
    QTest::mouseClick(&area(), Qt::LeftButton, {},
                      control("Check1_2").geometry().center() + QPoint(25, 0));
    click("command5");
    EXPECT_EQ(given(1), u"10100");
    EXPECT_EQ(verdict(1), 1);
    EXPECT_EQ(control<QLabel>("noa").text(), u"Question 2 / 4 :");
    EXPECT_TRUE(control("command6").isVisible());
    EXPECT_FALSE(control("Check1_0").isVisible());
    EXPECT_TRUE(control("Option1_0").isVisible());
    EXPECT_TRUE(control<QWidget>("Image4").isVisible());
}

TEST_F(Test, aWrongAnswerIsCorrected) {
    openAt(1);
    click("Check1_1");
    click("command5");
    EXPECT_EQ(verdict(1), -1);
    EXPECT_FALSE(control("command5").isVisible());
    EXPECT_TRUE(area().readableText().contains(u"Relisez."));
    const QColor green(0x1c, 0x75, 0x40), red(0xb3, 0x26, 0x1e);
    const QColor marks[] = {green, red, green};
    for (int i = 0; i < 3; ++i) {
        auto& box = control(qPrintable(QStringLiteral("Check1_%1").arg(i)));
        EXPECT_FALSE(box.isEnabled());
        EXPECT_EQ(box.isChecked(), i == 1);
        // The mark begins 36 pixels left of the box and 1 above; the box is 6 inside the control.
        EXPECT_EQ(colourAt(box.pos() + QPoint(6 - 36 + 2, 6 - 1 + 8)), marks[i]) << i;
    }
    EXPECT_EQ(textOf(area(), QAccessible::Name), u"Question 1 / 4, réponse fausse");
}

TEST_F(Test, wordsOfACourseAreNeitherMarkupNorMnemonics) {
    const QString words = test_support::kHostileWords;
    const std::u16string title = (words + u' ').repeated(4).toStdU16String();
    const std::u16string source = QStringLiteral("##EXOVI%1#oui.avi\r\n##EXOLI%1#12\r\n"
                                                 "##EXOTX\r\n¶\r\n")
                                      .arg(words)
                                      .toStdU16String();
    write({description(3, title.c_str(), number(1))},
          {question(301, 3, u"ohm", source.c_str(), kComment)});
    openAt(1);
    // The title, shortened, with its tooltip; the video.
    EXPECT_EQ(test_support::expectPlainWords(*exo), 3);
    EXPECT_EQ(control<QWidget>("Icovideo").accessibleName(), words);
}

TEST_F(Test, controlsStandWhereTheQuestionPutsThem) {
    openAt(1);
    for (const auto& operation : {0, 1, 2}) {
        auto& box = control(qPrintable(QStringLiteral("Check1_%1").arg(operation)));
        EXPECT_EQ(box.x(), 48 - 6);
        EXPECT_EQ(box.size(), QSize(25, 25)) << "large enough to be hit";
    }
    openAt(3);
    EXPECT_EQ(control<QWidget>("Text1").geometry().top(), 0); // not cut by the view
    EXPECT_EQ(control<QWidget>("Text1").width(), 200);
    EXPECT_FALSE(control("Check1_0").isVisible());
}

TEST_F(Test, enterValidatesOnce) {
    openAt(3);
    ASSERT_EQ(focus(), u"Text1");
    QTest::keyClicks(exo->focusWidget(), QStringLiteral("1.5 ohms"));
    EXPECT_EQ(control<QLineEdit>("Text1").text(), u"1,5 ohms");
    press(Qt::Key_Return, true); // a key still held from before
    EXPECT_EQ(verdict(3), 0);
    press(Qt::Key_Return);
    EXPECT_EQ(verdict(3), 1);
    EXPECT_EQ(control<QLabel>("noa").text(), u"Question 4 / 4 :");
    press(Qt::Key_Return, true);
    EXPECT_EQ(verdict(4), 0);

    control("Command3").click();
    EXPECT_FALSE(control<QWidget>("Text1").isEnabled());
    EXPECT_EQ(control<QLineEdit>("Text1").text(), u"1,5 ohms");
    press(Qt::Key_Return);
    EXPECT_TRUE(messageBoxes.messages.empty());
    EXPECT_EQ(given(3), u"1,5 ohms");
}

TEST_F(Test, enterOutsideTheAnswerBoxNeedsAnAnswer) {
    openAt(2);
    control<QWidget>("Option1_0").setFocus();
    press(Qt::Key_Return);
    area().setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(verdict(2), 0);
    control<QWidget>("command5").setFocus(); // the button itself asks for nothing
    press(Qt::Key_Return);
    EXPECT_EQ(verdict(2), -1);
    EXPECT_EQ(given(2), u"00000");
    click("command4");
    ASSERT_EQ(focus(), u"Text1");
    press(Qt::Key_Return); // nor does the box
    EXPECT_EQ(verdict(3), -1);
}

TEST_F(Test, aTypedAnswerHasItsVerdictBesideIt) {
    const auto colours = [this] {
        const QImage picture = control<QWidget>("Text1").grab().toImage();
        const auto mark = QPoint(200 - 5 - 8, 12 - 6) * picture.devicePixelRatio();
        return picture.pixelColor(mark);
    };
    openAt(3);
    EXPECT_FALSE(control<QWidget>("verdict").isVisible());
    EXPECT_EQ(colours(), QColor(Qt::white));
    QTest::keyClicks(exo->focusWidget(), QStringLiteral("volt"));
    click("command5");
    EXPECT_EQ(control<QWidget>("verdict").accessibleName(), u"Faux. Réponse attendue\u00A0: ohm");
    EXPECT_EQ(colours(), QColor(0xb3, 0x26, 0x1e));
    EXPECT_TRUE(textOf(control<QWidget>("Text1"), QAccessible::Description)
                    .endsWith(QStringLiteral("réponse fausse")));
    state.QuestionState.store(3, 1);
    click("command4");
    EXPECT_FALSE(control<QWidget>("verdict").isVisible());
    click("Command3");
    EXPECT_EQ(control<QWidget>("verdict").accessibleName(), u"Réponse juste");
    EXPECT_EQ(colours(), QColor(0x1c, 0x75, 0x40));
}

TEST_F(Test, theKeyboardReachesEverything) {
    openAt(2);
    EXPECT_EQ(focus(), u"Picture2");
    QStringList order;
    for (int stop = 0; stop < 7; ++stop) {
        QTest::keyClick(&*exo, Qt::Key_Tab);
        order.append(focus());
    }
    EXPECT_EQ(order, (QStringList{"Option1_0", "Command3", "command5", "command4", "Picture1",
                                  "Command7", "Image2"}));
    control<QWidget>("Option1_0").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    EXPECT_TRUE(control("Option1_1").isChecked());
    EXPECT_FALSE(control("Option1_0").isChecked());
    press(Qt::Key_Return);
    EXPECT_EQ(verdict(2), 1);
    control<QWidget>("Picture1").setFocus();
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    EXPECT_EQ(state.CurrentQuestion, 2);
    press(Qt::Key_End);
    EXPECT_EQ(state.CurrentQuestion, 4);
    EXPECT_EQ(focus(), u"Picture1");
}

TEST_F(Test, screenReadersHearChoicesAndVerdicts) {
    openAt(1);
    EXPECT_EQ(control("Check1_0").accessibleName(), u"le verre");
    EXPECT_EQ(control("Check1_1").accessibleName(), u"H2O liquide");
    click("Check1_0");
    click("command5");
    EXPECT_EQ(textOf(control("Check1_2"), QAccessible::Description), u"à choisir");
    EXPECT_EQ(control("Labelien").accessibleName(), u"Revoir la page");
    auto* const strip = QAccessible::queryAccessibleInterface(&control<QWidget>("Picture1"));
    ASSERT_EQ(strip->childCount(), 4);
    EXPECT_EQ(strip->child(0)->text(QAccessible::Name), u"Question 1, fausse");
    EXPECT_EQ(strip->child(3)->text(QAccessible::Name), u"Question 4, sans réponse");
    EXPECT_TRUE(strip->child(0)->state().selected);
    click("command4");
    click("command4");
    EXPECT_EQ(control<QWidget>("Text1").accessibleName(), u"Unité :");
}

TEST_F(Test, theStripChoosesAndShowsTheMarker) {
    openAt(1);
    auto& strip = control<QWidget>("Picture1");
    QTest::mouseClick(&strip, Qt::LeftButton, {}, {20, 3 * strip.height() / 4 + 20});
    EXPECT_EQ(state.CurrentQuestion, 4);
    EXPECT_FALSE(control("command4").isVisible());
    const QRect marker = control<QWidget>("Image4").geometry().translated(-strip.pos());
    EXPECT_EQ(marker, QRect(40, 437, 72, 36));
    // Not answered: the middle colour of its band, right of the marker.
    const QImage picture = strip.grab().toImage();
    EXPECT_EQ(picture.pixelColor(QPoint(140, 455) * picture.devicePixelRatio()),
              QColor(255, 175, 100));
}

TEST_F(Test, arrowsActWhenLetGoOverThem) {
    openAt(2);
    auto& next = control("command4");
    QTest::mousePress(&next, Qt::LeftButton);
    EXPECT_EQ(state.CurrentQuestion, 2);
    QTest::mouseRelease(&next, Qt::LeftButton, {}, {-20, 10});
    EXPECT_EQ(state.CurrentQuestion, 2);
    click("command4");
    EXPECT_EQ(state.CurrentQuestion, 3);
}

TEST_F(Test, aTallCommentScrollsWithItsControls) {
    std::u16string comment = u"##SI12\r\n";
    for (int i = 0; i < 40; ++i)
        comment += u"Encore une ligne.¶\r\n";
    comment += u"##EXOLITout en bas#2\r\n"; // without a line end of its own
    write({description(3, u"Long", number(1))},
          {question(301, 1, u"10000", kBoxes, comment.c_str())});
    openAt(1);
    auto& bar = control<look::ScrollBar>("questionScroll");
    EXPECT_FALSE(bar.isVisible());
    click("command5");
    ASSERT_TRUE(bar.isVisible());
    EXPECT_FALSE(exo->findChild<QLabel*>("Label5")->isHidden());
    auto& link = control("Labelien");
    EXPECT_LE(link.geometry().bottom(), area().height());
    auto& view = *area().parentWidget();
    const auto isSeen = [&] {
        return view.rect().contains(link.geometry().translated(area().pos()).center());
    };
    EXPECT_FALSE(isSeen());
    link.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(isSeen());
    const int box = control("Check1_0").mapTo(&view, QPoint()).y();
    press(Qt::Key_Home);
    EXPECT_GT(control("Check1_0").mapTo(&view, QPoint()).y(), box);
}

TEST_F(Test, closingAsksAndEndsTheTest) {
    openAt(2);
    messageBoxes.answers = {platform::Answer::No};
    QTest::keyClick(&*exo, Qt::Key_Escape);
    EXPECT_TRUE(exo->isVisible());
    EXPECT_EQ(shared.PendingExerciseChapter, 3);
    const platform::Message question{
        QStringLiteral("Fermer"), QStringLiteral("Voulez-vous vraiment abandonner le test?"),
        platform::Message::Icon::Question, platform::Message::Buttons::YesNo};
    EXPECT_EQ(messageBoxes.messages, std::vector({question}));
    messageBoxes.answers = {platform::Answer::Yes};
    click("Image2");
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(shared.PendingExerciseChapter, 0);
    EXPECT_EQ(messageBoxes.messages.size(), 2);
    EXPECT_FALSE(window.returnToTest);
}

TEST_F(Test, aLinkLeavesTheTestWithItsPage) {
    openAt(1);
    click("command5");
    click("Image1");
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(shared.ExerciseReturnPage, 12);
    EXPECT_EQ(shared.PendingExerciseChapter, 3);
    EXPECT_TRUE(messageBoxes.messages.empty());
    openWindow(); // it goes on where it was left
    EXPECT_EQ(shared.ExerciseReturnPage, 0);
    EXPECT_FALSE(control("command5").isVisible());
}

TEST_F(Test, closedDuringThePopupItEndsCleanly) {
    openAt(1);
    exo->setBlinkInterval(60'000);
    click("Check1_0");
    click("Check1_2");
    messageBoxes.answers = {platform::Answer::Yes};
    bool popupWasModal = false;
    QTimer::singleShot(0, &*exo, [&] {
        popupWasModal = QApplication::activeModalWidget() &&
                        QApplication::activeModalWidget()->objectName() == u"Cjuste";
        EXPECT_FALSE(control<QWidget>("Image4").isVisible());
        exo->close();
    });
    click("command5"); // returns only because the popup goes too
    EXPECT_TRUE(popupWasModal);
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(shared.PendingExerciseChapter, 0);
    EXPECT_EQ(verdict(1), 0);
}

TEST_F(Test, theCalculatorOpensBesideIt) {
    openAt(1);
    bench.window.move(100, 50);
    click("Command7");
    click("Command7");
    const QPoint place(bench.window.x() + 800 - 302 - 16, bench.window.y() + 120);
    ASSERT_NE(bench.window.x(), 0);
    EXPECT_EQ(calculator.opened, (QList<QPoint>{place, place}));
}

TEST_F(Test, pupilsSeeNoSwitch) {
    openAt(1);
    EXPECT_FALSE(control<QWidget>("notice").isVisible());
    EXPECT_FALSE(exo->findChild<QWidget*>("Command1"));
    EXPECT_FALSE(exo->findChild<QWidget*>("code"));
}

using Opened = Test;

TEST_F(Opened, theMainWindowWaitsAndOthersDoNot) {
    ExoOpener opener(bench.window,
                     {shared, bench.drawing, bench.pictures, bench.fonts, bench.screen,
                      messageBoxes, calculator, bench.collaborators.reading});
    QPushButton beside(QStringLiteral("Calculatrice"));
    beside.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&beside));
    bool besideActs = false;
    QObject::connect(&beside, &QPushButton::clicked, [&] { besideActs = true; });
    bench.collaborators.exercise.whileOpen = [&] { opener.open(); };
    messageBoxes.answers = {platform::Answer::Yes};
    QTimer::singleShot(100, &bench.window, [&] {
        auto* const test = bench.window.findChild<QWidget*>("exo");
        ASSERT_TRUE(test);
        EXPECT_EQ(test->pos(), bench.window.pos());
        EXPECT_EQ(test->size(), bench.window.size());
        opener.open(); // it is open
        QTest::mouseClick(beside.windowHandle(), Qt::LeftButton, {}, {5, 5});
        QTest::mouseClick(bench.window.windowHandle(), Qt::LeftButton, {}, {312, 32});
        test->close();
    });
    bench.commands.runCode(QStringLiteral("EXO003"));
    EXPECT_TRUE(besideActs);
    EXPECT_EQ(bench.collaborators.log, QStringList{"exercise"}); // and no calculator
}

using QuestionLinks = ExoCase;

// Its caption stands there as the question's own text would, accents and feet included.
TEST_F(QuestionLinks, lookLikeText) {
    QList<QImage> shown;
    for (const char16_t* line : {u"##PIX032\r\nÎle gj\r\n", u"##EXOLIÎle gj#1\r\n"}) {
        shared.PendingExerciseChapter = 3;
        state = {};
        const std::u16string source = std::u16string(u"##SI12\r\n##PIY004\r\n") + line;
        write({{number(3), jet::Value(u"x"), number(1)}},
              {{jet::Value(301), number(3), jet::Value(u"ohm"), jet::Value(source), {}}});
        openWindow();
        shown.append(area().grab(QRect(30, 0, 200, 40)).toImage());
        messageBoxes.answers = {platform::Answer::Yes};
        control("Image2").click();
        messageBoxes.answers.clear();
    }
    EXPECT_NE(shown[0].pixelColor(33, 12), shown[0].pixelColor(199, 39)) << "an I, and paper";
    EXPECT_EQ(shown[0], shown[1]);
}

} // namespace
} // namespace exercises::test
