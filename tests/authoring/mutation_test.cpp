#include "authoring/markdown.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

#include <random>

// Mutated pages give a fault with a place or a page on which every word stands, never less.
// ORVALENTE_MUTATIONS asks for more of them than the tests make every day.

namespace {

namespace fs = std::filesystem;

constexpr int kMutations = 400;

std::vector<std::string> seeds() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(AUTHORING_CORPUS))
        if (entry.path().extension() == ".md")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<std::string> bodies;
    for (const fs::path& file : files)
        bodies.push_back(bodyOf(file));
    return bodies;
}

std::string mutated(std::string source, const std::vector<std::string>& others,
                    std::mt19937& random) {
    static const std::vector<std::string> kPieces = {
        "*",  "**",        "***",   "`", "```\n", "$",    "$$",     "\\",        "{",       "}",
        "[",  "](page:1)", "![](",  ")", "\n",    "\n\n", "> ",     "- ",        "- [x] ",  "1. ",
        "| ", "|---|\n",   "# ",    "<", "<!--",  "-->",  "&nbsp;", "\\ce{",     "\\frac{", "^",
        "_",  "##SI",      "+++\n", "é", "\t",    "  \n", "%",      "(réponse)", "---\n"};
    const auto at = [&](const std::string& text) {
        return text.empty() ? 0 : random() % text.size();
    };
    for (auto edits = 1 + random() % 6; edits > 0; --edits) {
        const std::size_t place = at(source);
        switch (random() % 5) {
        case 0:
            source.erase(place, 1 + random() % 8);
            break;
        case 1:
            source.insert(place, kPieces[random() % kPieces.size()]);
            break;
        case 2: {
            const std::string& other = others[random() % others.size()];
            source.insert(place, other.substr(at(other), random() % 80));
            break;
        }
        case 3:
            source[place] = static_cast<char>(random() % 128);
            break;
        default:
            source.resize(place + 1);
        }
    }
    return source;
}

/// As the tool reads it: valid UTF-8.
std::string asRead(const std::string& source) {
    return QString::fromStdString(source).remove(QChar(0xFFFD)).remove(u'\r').toStdString();
}

/// Whether a question compiles without a fault; all that is seen of it must be there then.
bool isWholeQuestion(const std::string& source) {
    const auto question = compiler().question(source, 1, {});
    if (!question.faults.empty())
        return false;
    // Ticks, accepted answers and the name of the comment are seen nowhere.
    static const QRegularExpression unseen(QStringLiteral(
        "(?im)\\[(?:[^\\[\\]]|\\[[^\\[\\]]*\\])*\\]\\(\\s*r[ée]ponse\\s*\\)|\\[x\\]|^ *## .*$|"
        "^ *si c['’]est faux *\\n *-+ *$"));
    const QString seen = QString::fromStdString(source).replace(unseen, QStringLiteral(" "));
    const QString shown =
        printed(question.question) + (question.siFaux ? printed(*question.siFaux) : QString());
    EXPECT_EQ(lostLetters(seen.toStdString(), shown), QString()) << source << shown.toStdString();
    return true;
}

TEST(Mutations, giveAFaultOrAPageWithEveryWord) {
    const std::vector<std::string> bodies = seeds();
    const char* const asked = std::getenv("ORVALENTE_MUTATIONS");
    const int count = asked ? std::atoi(asked) : kMutations;
    std::mt19937 random(2026);
    int pages = 0;
    int questions = 0;
    for (int i = 0; i < count; ++i) {
        const std::string source =
            asRead(mutated(bodies[random() % bodies.size()], bodies, random));
        questions += isWholeQuestion(source) ? 1 : 0;
        const auto page = compiler().page(source, 1, {});
        const auto last = 1 + std::count(source.begin(), source.end(), '\n');
        for (const authoring::Fault& fault : page.faults) {
            EXPECT_GE(fault.line, 1);
            EXPECT_LE(fault.line, last) << fault.sentence;
            EXPECT_GE(fault.column, 1);
        }
        if (!page.faults.empty())
            continue;
        ++pages;
        const QString shown = printed(page.text);
        for (const QString& word : wordsToPrint(source))
            EXPECT_TRUE(shown.contains(word, Qt::CaseInsensitive))
                << i << ": " << word.toStdString() << "\n"
                << source;
        EXPECT_EQ(lostLetters(source, shown), QString()) << i << "\n"
                                                         << source << shown.toStdString();
        if (testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(pages, count / 10);
    EXPECT_GT(questions, 0);
}

} // namespace
