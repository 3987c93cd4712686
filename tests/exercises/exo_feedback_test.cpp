// What the test's window shows of answers: emptied fields, faces, marks, the popup, a test resumed.

#include "exercises/cjuste.h"
#include "exercises/exo_case.h"
#include "exercises/exo_opener.h"
#include "exercises/progress_strip.h"
#include "exercises/score.h"
#include "exercises/strip.h"

#include <QLabel>
#include <QLineEdit>

namespace exercises::test {
namespace {

const char16_t kBox[] = u"##SI12\r\n##PIX048\r\n##EXOCK\r\nle verre¶\r\n";
const char16_t kOption[] = u"##SI12\r\n##PIX048\r\n##EXOOP\r\noui¶\r\n";
const char16_t kTyped[] = u"##SI12\r\nUnité : \r\n##EXOTX\r\n¶\r\n";
const char16_t kComment[] = u"Relisez.¶\r\n##EXOLIRevoir la page#12\r\n##EXOVI#4\r\n¶\r\n";

class Feedback : public ExoCase {
protected:
    void SetUp() override {
        write({description(3, u"Les milieux", number(6))},
              {question(301, 1, u"01000", kBox, kComment), question(302, 1, u"10000", kBox, u""),
               question(303, 2, u"01000", kOption, kComment),
               question(304, 2, u"10000", kOption, u""), question(305, 3, u"ohm", kTyped, kComment),
               question(306, 3, u"ohm", kTyped, u"")});
    }

    QImage pictureOf(QWidget& widget) { return widget.grab().toImage(); }
    /// The face that marks the question, 1 to 7; 0 for none of them.
    int face() {
        auto& shown = control<QWidget>("Image4");
        for (int level = kSaddestFace; level <= kHappiestFace; ++level) {
            Marker expected(shown.parentWidget());
            expected.setFace(level);
            if (pictureOf(expected) == pictureOf(shown))
                return level;
        }
        return 0;
    }
};

/// The first question of each kind is answered wrong; the second finds everything fresh.
TEST_F(Feedback, theAnswerPanelIsEmptiedAndFreedBetweenQuestions) {
    openWindow();
    for (const char* const choice : {"Check1_0", "Option1_0"}) {
        click(choice);
        const QPoint words = control(choice).geometry().center() + QPoint(25, 0);
        click("command5");
        ASSERT_TRUE(control(choice).isChecked() && !control(choice).isEnabled());
        ASSERT_NE(textOf(control(choice), QAccessible::Description), u"");
        ASSERT_TRUE(control("Labelien").isVisible() && control("Icovideo").isVisible());
        click("command4");
        EXPECT_TRUE(control(choice).isVisible() && control(choice).isEnabled()) << choice;
        EXPECT_FALSE(control(choice).isChecked()) << choice;
        EXPECT_EQ(textOf(control(choice), QAccessible::Description), u"") << choice;
        for (const char* const link : {"Labelien", "Image1", "Icovideo"})
            EXPECT_FALSE(control(link).isVisible()) << link;
        EXPECT_FALSE(area().readableText().contains(u"Relisez."));
        click("command4");
        QTest::mouseClick(&area(), Qt::LeftButton, {}, words);
        EXPECT_FALSE(control(choice).isChecked()) << "no words of " << choice << " are left";
        EXPECT_FALSE(control(choice).isVisible());
    }
    auto& Text1 = control<QLineEdit>("Text1");
    QTest::keyClicks(&Text1, QStringLiteral("volt"));
    click("command5");
    ASSERT_FALSE(Text1.isEnabled());
    click("command4");
    EXPECT_TRUE(Text1.isVisible() && Text1.isEnabled());
    EXPECT_EQ(Text1.text(), u"");
}

TEST_F(Feedback, theFaceFollowsTheAnswersAlsoWhenTheTestIsResumed) {
    openWindow();
    EXPECT_EQ(face(), TestSession::kNeutralFace);
    click("command5");
    EXPECT_EQ(face(), 1);
    click("command4");
    click("Check1_0");
    click("command5");
    EXPECT_EQ(face(), 4); // 1 of 2
    click("command5");
    EXPECT_EQ(face(), 3); // 1 of 3
    click("Labelien");
    ASSERT_FALSE(exo->isVisible());
    openWindow();
    EXPECT_EQ(face(), 3);
}

TEST_F(Feedback, theStripShowsCaptionsAndMarks) {
    state.QuestionState.store(2, 1);
    state.QuestionState.store(3, -1);
    openWindow();
    auto& strip = static_cast<Strip&>(control<QWidget>("Picture1"));
    const QImage picture = pictureOf(strip);
    const double scale = picture.devicePixelRatio();
    /// How many pixels of a colour there are in a part of the question's band.
    const auto count = [&](int question, int left, int right, QRgb colour) {
        const QRect band = strip.bandRect(question);
        int found = 0;
        for (int y = qRound((band.top() + 3) * scale); y < band.bottom() * scale; ++y)
            for (int x = qRound(left * scale); x < right * scale; ++x)
                found += picture.pixel(x, y) == colour;
        return found;
    };
    constexpr int kAfterMark = 36;
    for (int question = 1; question <= 6; ++question) {
        const int answered = state.QuestionState.valueOr(question, 0);
        EXPECT_GT(count(question, kAfterMark, strip.width() - 3, bandInks(answered).caption), 20)
            << question;
        const QRgb paper = qRgb(255, 255, 255);
        EXPECT_EQ(count(question, 3, kAfterMark, paper) > 20, answered != 0) << question;
    }
    const QColor green(0x1c, 0x75, 0x40), red(0xb3, 0x26, 0x1e);
    EXPECT_GT(count(2, 3, kAfterMark, green.rgb()), 5);
    EXPECT_EQ(count(2, 3, kAfterMark, red.rgb()), 0);
    EXPECT_GT(count(3, 3, kAfterMark, red.rgb()), 5);
    EXPECT_EQ(count(3, 3, kAfterMark, green.rgb()), 0);
}

TEST_F(Feedback, thePopupAlternatesAndTakesNoKeys) {
    openWindow();
    Cjuste popup(&*exo);
    popup.setInterval(3'600'000); // the ticks are given by hand
    popup.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&popup));
    EXPECT_EQ(popup.findChild<QLabel*>("Label3")->text(), u"Réponse exacte");
    const auto tick = [&popup] {
        QMetaObject::invokeMethod(popup.findChild<QTimer*>(), "timeout");
    };
    const QImage first = pictureOf(popup);
    tick();
    const QImage second = pictureOf(popup);
    EXPECT_NE(second, first);
    for (const int key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space})
        QTest::keyClick(&popup, Qt::Key(key));
    EXPECT_TRUE(popup.isVisible());
    EXPECT_EQ(pictureOf(popup), second);
    tick();
    EXPECT_EQ(pictureOf(popup), first);
    EXPECT_TRUE(popup.isVisible());
    tick();
    EXPECT_FALSE(popup.isVisible());
}

TEST_F(Feedback, aTestReopensAtItsLastQuestion) {
    ExoOpener opener(bench.window,
                     {shared, bench.drawing, bench.pictures, bench.fonts, bench.screen,
                      messageBoxes, calculator, bench.collaborators.reading});
    const auto whileOpen = [&](const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, &bench.window, [&] {
            auto* const test = bench.window.findChild<QWidget*>("exo");
            ASSERT_TRUE(test);
            act(*test);
            test->close();
        });
        opener.open();
    };
    const auto button = [](QWidget& test, const char* name) {
        return test.findChild<QAbstractButton*>(QString::fromLatin1(name));
    };
    whileOpen([&](QWidget& test) {
        button(test, "command4")->click();
        button(test, "command4")->click();
        button(test, "command5")->click();
        button(test, "Icovideo")->click();
    });
    EXPECT_EQ(shared.ExerciseReturnPage, 4);
    shared.PendingExerciseChapter = 3; // as any page that opens a test leaves it
    messageBoxes.answers = {platform::Answer::Yes};
    whileOpen([&](QWidget& test) {
        EXPECT_EQ(test.findChild<QLabel*>("noa")->text(), u"Question 3 / 6 :");
        EXPECT_FALSE(button(test, "command5")->isVisible());
        EXPECT_TRUE(button(test, "command6")->isVisible());
    });
    EXPECT_EQ(shared.PendingExerciseChapter, 0);
    shared.PendingExerciseChapter = 3;
    messageBoxes.answers = {platform::Answer::Yes};
    whileOpen([&](QWidget& test) {
        EXPECT_EQ(test.findChild<QLabel*>("noa")->text(), u"Question 1 / 6 :");
    });
}

} // namespace
} // namespace exercises::test
