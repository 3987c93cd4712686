#include "help/help_search.h"
#include "support/files.h"
#include "support/printing.h"

#include <QTemporaryDir>

using help::HelpBook;
using help::HelpQuery;
using help::Span;

namespace {

class Book : public testing::Test {
protected:
    Book() {
        write("sommaire.txt", "# Un\na.html\nabsent.html\n\n# Deux\nb.html\nc.html\n");
        write("a.html", "<h1>Imprimer</h1><p>Le <b>papier</b> et l’Encre.</p>");
        write("b.html", "<h1>Vidéo</h1><p>On peut imprimer, imprimer, puis imprimer encore.</p>");
        write("c.html", "<h1>Écran</h1><table><tr><td>papier</td><td>Réglage</td></tr></table>");
    }
    void write(const char* name, const char* text) {
        test_support::writeFile(directory.filePath(name), text);
    }
    QStringList found(const char* typed) {
        const HelpBook book(directory.path());
        QStringList titles;
        for (const auto& page : help::search(book, HelpQuery(QString::fromUtf8(typed))))
            titles.append(book.pages()[page.page].title);
        return titles;
    }

    QTemporaryDir directory;
};

TEST_F(Book, hasItsChaptersAndThePagesThatCanBeRead) {
    const HelpBook book(directory.path());
    ASSERT_EQ(book.chapters().size(), 2);
    EXPECT_EQ(book.chapters()[1].title, "Deux");
    EXPECT_EQ(book.chapters()[1].pages, (QList<int>{1, 2}));
    EXPECT_EQ(book.find("b.html"), 1);
    EXPECT_FALSE(book.find("absent.html"));
    EXPECT_TRUE(HelpBook(directory.filePath("nulle-part")).pages().isEmpty());
}

TEST_F(Book, findsTheBestPagesFirst) {
    const struct {
        const char* typed;
        QStringList titles;
    } rows[] = {
        {"imprimer", {"Imprimer", "Vidéo"}}, // the title counts more than three mentions
        {"papier", {"Imprimer", "Écran"}},   // otherwise the order of the book
        {"ECRAN", {"Écran"}},                // neither case nor accents
        {"vidéos", {"Vidéo"}},               // a plural
        {"encre", {"Imprimer"}},             // behind an apostrophe
        {"rimer", {}},                       // words from their beginning
        {"papier reglages", {"Écran"}},      // all words
        {"papier vidéo", {"Imprimer", "Vidéo", "Écran"}}, // or as many as there are
        {"comment imprimer le papier ?", {"Imprimer"}},
        {" , ", {}},
    };
    for (const auto& row : rows) {
        QStringList titles = found(row.typed);
        if (row.titles.size() == 3)
            titles.sort();
        EXPECT_EQ(titles, row.titles) << row.typed;
    }
}

TEST_F(Book, showsALineAroundTheFirstWord) {
    const HelpBook book(directory.path());
    const auto first = help::search(book, HelpQuery("réglage")).value(0);
    EXPECT_EQ(first.line, "papier · Réglage");
    EXPECT_EQ(first.hits, (QList<Span>{{9, 7}}));
}

TEST(HelpQuery, marksWholeWords) {
    EXPECT_EQ(HelpQuery("impr de").hits(u"Imprimante de l’IMPRESSION, réimpression"),
              (QList<Span>{{0, 10}, {16, 10}}));
    EXPECT_EQ(HelpQuery("f3").hits(u"F3, F").size(), 1);
    // A plural leaves three letters at least.
    EXPECT_EQ(HelpQuery("os").hits(u"Os, on, o").size(), 1);
    EXPECT_EQ(HelpQuery("gas").hits(u"gas, gaz").size(), 1);
    EXPECT_EQ(HelpQuery("becs").hits(u"bec, bec Bunsen, bécarre, be").size(), 3);
    QString many;
    for (int i = 100; i < 200; ++i)
        many += QString::number(i) + ' ';
    EXPECT_EQ(HelpQuery(many).size(), HelpQuery::kMostWords);
}

} // namespace
