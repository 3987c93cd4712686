// What the authors' handbook tells to write and to type.

#include "coursetool/program.h"
#include "support/files.h"

#include <gmock/gmock.h>

namespace {

struct Listing {
    QString about; ///< behind the fence: "console", "markdown pages/1.md"
    QString text;
};

/// What stands between fences, of three signs or more.
std::vector<Listing> listingsOf(const QString& document) {
    std::vector<Listing> listings;
    QString fence;
    for (const QString& line : document.split(u'\n')) {
        if (!fence.isEmpty() && line == fence)
            fence.clear();
        else if (!fence.isEmpty())
            listings.back().text += line + u'\n';
        else if (line.startsWith(QStringLiteral("```"))) {
            const qsizetype end = line.lastIndexOf(u'`') + 1;
            fence = line.first(end);
            listings.push_back({line.sliced(end), {}});
        }
    }
    EXPECT_TRUE(fence.isEmpty());
    return listings;
}

/// What the handbook's course has before its reader adds to it: a stand-in for what `new` writes,
/// which has tests of its own.
void writeStart(const Workspace& work) {
    for (int number = 1; number <= 3; ++number) {
        const std::string digit = std::to_string(number);
        work.write("mon-cours/pages/00" + digit + ".md",
                   "+++\nNumeropage = " + digit + "\nIndex = " + digit + "\ntitre = \"T" + digit +
                       "\"\nprecedent = " + (number > 1 ? "true" : "false") +
                       "\nsuite = true\n+++\n# Page " + digit + "\n");
    }
    const std::string test = "mon-cours/exercises/1-masse-volumique-concentration/";
    work.write(test + "chapter.toml", "Chapitre = 1\nTitre = \"Masse\"\nNbquest = 6\n");
    for (const char* reference : {"101", "102", "103", "104"})
        work.write(test + reference + ".md", std::string("+++\nREFERENCE = ") + reference +
                                                 "\n+++\nOui ?\n\n- [x] oui\n- [ ] non\n");
    work.write("mon-cours/files/eprouvette.svg",
               "<svg width='40' height='60'><title>Une éprouvette</title>"
               "<path d='M0 0h39v59z'/></svg>");
}

TEST_F(Program, doesWhatTheHandbookTells) {
    const QString handbook = QString::fromUtf8(test_support::readFile(QStringLiteral(HANDBOOK)));
    writeStart(work);
    int files = 0;
    int calls = 0;
    for (const Listing& listing : listingsOf(handbook)) {
        SCOPED_TRACE(listing.about.toStdString() + '\n' + listing.text.toStdString());
        if (listing.about.startsWith(QStringLiteral("markdown "))) {
            const std::string file = "mon-cours/" + listing.about.section(u' ', 1).toStdString();
            work.write(file, listing.text.toStdString());
            const Outcome converted = run({"convert", QString::fromStdString(file)});
            EXPECT_EQ(converted.code, 0) << converted.err;
            ++files;
            continue;
        }
        ASSERT_EQ(listing.about, QStringLiteral("console"));
        for (const QString& line : listing.text.split(u'\n', Qt::SkipEmptyParts)) {
            const QStringList words = QProcess::splitCommand(line);
            // The start stands already, and windows wait for somebody.
            if (words[0] == "orvalente" || words[1] == "new" || words[1] == "preview")
                continue;
            const Outcome outcome = run(words.sliced(1));
            EXPECT_EQ(outcome.code, 0) << outcome.out;
            EXPECT_EQ(outcome.err, "");
            ++calls;
        }
    }
    EXPECT_EQ(files, 3);
    EXPECT_GE(calls, 7);
    EXPECT_TRUE(work.read("dilution.pdf").starts_with("%PDF"));
    // Each listing is drawn.
    const QStringList drawn[] = {{"--page", "4"}, {"--question", "105"}, {"--question", "106"}};
    for (const QStringList& what : drawn) {
        const Outcome outcome =
            run(QStringList{"render", "installation"} + what + QStringList{"-o", "a.svg"});
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.err, "") << what.join(' ').toStdString();
        EXPECT_THAT(work.read("a.svg"), testing::HasSubstr("</text>"));
    }
}

} // namespace
