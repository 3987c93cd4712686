// The test's window read aloud, by a voice that only notes what it is given.

#include "exercises/exo_case.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace exercises::test {
namespace {

class QuestionAloud : public ExoCase {
protected:
    void SetUp() override {
        write(
            {description(3, u"Les milieux", number(2))},
            {question(301, 1, u"01000", u"##SI12\r\nQui est solide ?¶\r\n##EXOCK\r\nle verre¶\r\n",
                      u"Relisez.¶\r\n"),
             question(302, 3, u"ohm", u"##SI12\r\nUnité : \r\n##EXOTX\r\n¶\r\n", u"")});
        openWindow();
    }
    void strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(exo->focusWidget() ? exo->focusWidget() : &*exo, key, modifiers);
    }
    /// Ctrl+Shift+L, and all that the voice is then given, to the end.
    QString read() {
        begin();
        QStringList all;
        while (!voices.log.isEmpty()) {
            all += voices.log;
            voices.log.clear();
            voices.events.said();
        }
        return all.join(u'|');
    }
    void begin() {
        voices.log.clear();
        strike(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    }
    /// What is said of the reading; empty when nothing is.
    QString line() {
        const auto& words = control<QLabel>("outcome");
        return words.isVisible() ? words.text() : QString();
    }

    test_support::FakeVoices& voices = bench.collaborators.voices;
};

TEST_F(QuestionAloud, saysTheQuestionAndOnceAnsweredWhatItWasWorthAndTheComment) {
    EXPECT_EQ(read(), u"Question 1 sur 2|Qui est solide ?|le verre");
    EXPECT_EQ(line(), u"");
    click("command5");
    EXPECT_EQ(read(), u"Question 1 sur 2|Réponse fausse|Qui est solide ?|le verre|"
                      u"Relisez.");
    click("command4");
    ASSERT_EQ(focus(), u"Text1"); // the answer box lets the key through
    EXPECT_EQ(read(), u"Question 2 sur 2|Unité :");
    EXPECT_EQ(control<QLineEdit>("Text1").text(), u"");
}

TEST_F(QuestionAloud, endsWithItsKeyEscapeAnAnswerAnotherQuestionOrAWindowOverIt) {
    const struct {
        const char* name;
        std::function<void()> end;
    } rows[] = {
        {"its key", [this] { strike(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); }},
        {"Escape", [this] { strike(Qt::Key_Escape); }},
        {"its button", [this] { click("outcomeAction"); }},
        {"another question", [this] { click("command4"); }},
        {"an answer", [this] { click("command5"); }},
        {"a window over it",
         [this] {
             QDialog over(&*exo);
             QTimer::singleShot(0, &over, &QDialog::reject);
             over.exec();
         }},
    };
    for (const auto& row : rows) {
        begin();
        ASSERT_EQ(line(), u"Lecture à voix haute.") << row.name;
        row.end();
        EXPECT_EQ(voices.log.last(), u"stop") << row.name;
        EXPECT_EQ(line(), u"") << row.name;
        EXPECT_TRUE(exo->isVisible()) << row.name;
    }
    begin();
    messageBoxes.answers = {platform::Answer::Yes};
    click("Image2");
    EXPECT_EQ(voices.log.last(), u"stop") << "closed";
}

TEST_F(QuestionAloud, followsInTheQuestionAndSaysWhereThereIsNoVoice) {
    const QImage plain = area().grab().toImage();
    begin();
    voices.events.said();
    EXPECT_NE(area().grab().toImage(), plain) << "what is said is tinted";
    strike(Qt::Key_Escape);
    EXPECT_EQ(area().grab().toImage(), plain);
    begin();
    voices.events.cannotSpeak();
    EXPECT_EQ(line(), u"Pas de lecture à voix haute : cet ordinateur n’a pas de voix française.");
    click("command4");
    EXPECT_EQ(line(), u"");
}

} // namespace
} // namespace exercises::test
