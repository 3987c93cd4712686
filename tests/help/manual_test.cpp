// The manual itself: what it names is there.

#include "help/page_document.h"
#include "support/files.h"
#include "support/printing.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

namespace help {
namespace {

const HelpBook& book() {
    static const HelpBook kBook;
    return kBook;
}

/// What `pattern` captures in a text.
QStringList captured(const QString& text, const char* pattern) {
    QStringList all;
    const QRegularExpression expression(QString::fromUtf8(pattern));
    for (auto found = expression.globalMatch(text); found.hasNext();)
        all.append(found.next().captured(1));
    return all;
}

/// The texts in quotes of all sources, mnemonics left out.
QSet<QString> textsOfTheProgram() {
    QSet<QString> all;
    for (const char* folder : {SOURCES "/src", SOURCES "/modules"}) {
        QDirIterator files(folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString source = QString::fromUtf8(test_support::readFile(files.next()));
            for (QString text : captured(source, R"re("((?:[^"\\\n]|\\.)*)")re"))
                all.insert(text.replace("\\u2212", QString(QChar(0x2212))).remove(u'&'));
        }
    }
    return all;
}

TEST(Manual, everyPageIsInTheContentsOnce) {
    QStringList files;
    for (const HelpPage& page : book().pages()) {
        files.append(page.file);
        EXPECT_FALSE(page.title.isEmpty()) << qPrintable(page.file);
    }
    files.sort();
    EXPECT_EQ(files, QDir(book().folder()).entryList({"*.html"}, QDir::Files, QDir::Name));
    EXPECT_GE(files.size(), 12);
}

TEST(Manual, everyLinkLeadsSomewhere) {
    int links = 0;
    for (const HelpPage& page : book().pages()) {
        for (const QString& target : captured(page.html, "href=\"([^\"]*)\"")) {
            ++links;
            const auto found = book().find(target.section(u'#', 0, 0));
            ASSERT_TRUE(found) << qPrintable(page.file + ": " + target);
            const QString anchor = target.section(u'#', 1);
            EXPECT_TRUE(anchor.isEmpty() ||
                        book().pages()[*found].html.contains("<a name=\"" + anchor + "\">"))
                << qPrintable(page.file + ": " + target);
        }
    }
    EXPECT_GT(links, 20);
}

TEST(Manual, everyPictureIsThereAndUsed) {
    QSet<QString> used;
    for (const HelpPage& page : book().pages()) {
        for (const QString& name : captured(page.html, "<img src=\"([^\"]*)\"")) {
            EXPECT_FALSE(pagePicture(book().folder(), name, 1).isNull())
                << qPrintable(page.file + ": " + name);
            used.insert(name);
        }
    }
    for (const QString& file : QDir(book().folder() + "/captures").entryList(QDir::Files))
        EXPECT_TRUE(used.contains("captures/" + file)) << qPrintable(file);
}

TEST(Manual, everyButtonItNamesIsInTheProgram) {
    const QSet<QString> texts = textsOfTheProgram();
    int buttons = 0;
    for (const HelpPage& page : book().pages()) {
        for (const QString& caption : captured(page.html, "<b\\s+class=\"bouton\">([^<]*)</b>")) {
            ++buttons;
            EXPECT_TRUE(texts.contains(caption)) << qPrintable(page.file + ": " + caption);
        }
    }
    EXPECT_GT(buttons, 60);
}

} // namespace
} // namespace help
