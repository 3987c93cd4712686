#include "exercises/exo_case.h"

#include <QClipboard>
#include <QFile>
#include <QPlainTextEdit>

namespace exercises::test {
namespace {

class Authoring : public ExoCase {
protected:
    void SetUp() override {
        write({description(3, u"x", number(2))},
              {question(301, 1, u"10000", u"Premi\u00E8re\u00A0: oui¶\r\n##EXOCK\r\n", u"Non¶\r\n"),
               question(302, 1, u"10000", u"Seconde¶\r\n", u"Non¶\r\n")});
        openWindow(true);
    }

    QPlainTextEdit& source() { return control<QPlainTextEdit>("code"); }
    void type(const QString& text) {
        source().moveCursor(QTextCursor::Start);
        source().insertPlainText(text);
    }
    /// Field "question" of both records, as another reader finds them.
    QStringList stored() {
        QStringList all;
        const coursedata::ExerciseTables fresh = coursedata::openExerciseTables(folder.path());
        fresh.contenu->forEach({QStringLiteral("question")}, [&](int, auto fields) {
            all.append(coursedata::shownText(fields[0]));
        });
        return all;
    }
    /// Another program has the database open.
    void lock() { QFile(folder.filePath("QEKX.ldb")).open(QIODevice::WriteOnly); }
    void unlock() { QFile::remove(folder.filePath("QEKX.ldb")); }

    const QStringList untouched_{QStringLiteral("Première\u00A0: oui¶\r\n##EXOCK\r\n"),
                                 QStringLiteral("Seconde¶\r\n")};
};

TEST_F(Authoring, turnedBackTheSwitchStoresAndShowsWhatWasTyped) {
    click("Command1");
    ASSERT_TRUE(source().isVisible());
    type(QStringLiteral("Oh\n"));
    click("Command1");
    EXPECT_FALSE(source().isVisible());
    EXPECT_EQ(stored(), (QStringList{QStringLiteral("Oh\r\n") + untouched_[0], untouched_[1]}));
    EXPECT_TRUE(area().readableText().contains(u"Oh"));
}

TEST_F(Authoring, aLastLineTypedWithoutEnterIsEnded) {
    click("Command1");
    source().moveCursor(QTextCursor::End);
    source().insertPlainText(QStringLiteral("Cochez.¶"));
    click("Command1");
    EXPECT_EQ(stored()[0], untouched_[0] + QStringLiteral("Cochez.¶\r\n"));
    click("command5"); // wrong: the comment has a line of its own
    EXPECT_TRUE(area().readableText().contains(u"Cochez.\nNon"))
        << area().readableText().toStdString();
    click("Command1");
    source().selectAll();
    source().cut();
    click("Command1");
    EXPECT_EQ(stored()[0], u"");
}

TEST_F(Authoring, onlyTheQuestionIsTakenAndOnlyWhatWasTypedIsStored) {
    click("command5"); // wrong: the comment stands below
    ASSERT_TRUE(area().readableText().contains(u"Non"));
    click("Command1");
    EXPECT_FALSE(source().toPlainText().contains(u"Non"));
    click("Command1");
    EXPECT_EQ(stored(), untouched_);
    click("Command1");
    type(QStringLiteral("!"));
    click("command4"); // another question: what was typed is stored, and its own text is shown
    EXPECT_TRUE(source().isVisible());
    EXPECT_EQ(source().toPlainText(), u"Seconde¶\n");
    EXPECT_EQ(stored(), (QStringList{u'!' + untouched_[0], untouched_[1]}));
}

TEST_F(Authoring, closingStoresToo) {
    click("Command1");
    type(QStringLiteral("!"));
    messageBoxes.answers = {platform::Answer::Yes};
    click("Image2");
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(stored()[0], u'!' + untouched_[0]);
}

TEST_F(Authoring, whatCannotBeStoredIsToldAndKept) {
    click("Command1");
    type(QStringLiteral("!"));
    lock();
    for (const char* way : {"Command1", "command4", "command5"}) {
        click(way);
        EXPECT_EQ(messageBoxes.messages.back().title, u"Question non enregistrée") << way;
        EXPECT_TRUE(source().isVisible());
        EXPECT_TRUE(source().toPlainText().startsWith(u'!'));
        EXPECT_EQ(state.CurrentQuestion, 1);
    }
    EXPECT_EQ(messageBoxes.messages.size(), 3);
    messageBoxes.answers = {platform::Answer::No};
    click("Image2");
    EXPECT_TRUE(exo->isVisible());
    messageBoxes.answers = {platform::Answer::Yes, platform::Answer::Yes};
    click("Image2");
    EXPECT_FALSE(exo->isVisible());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u'!' + untouched_[0]);
    unlock();
    EXPECT_EQ(stored(), untouched_);
}

} // namespace
} // namespace exercises::test
