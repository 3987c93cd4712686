#include "authoring/drawn.h"
#include "authoring/markdown.h"

#include <gmock/gmock.h>

#include <fstream>

// The corpus is what compiling gives, page by page: whoever changes it on purpose runs the tests
// once with ORVALENTE_WRITE_CORPUS set, and looks at the differences.

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> markdownFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(AUTHORING_CORPUS))
        if (entry.path().extension() == ".md")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string compiledFile(const fs::path& file) {
    const std::string body = bodyOf(file);
    if (file.parent_path().filename() != "questions") {
        const auto page = compiler().page(body, 1, file.stem().string());
        return page.text.source + told(page.faults);
    }
    const auto question = compiler().question(body, 1, {});
    return "type = " + std::to_string(question.type) + "\nsolution = " + question.solution + '\n' +
           question.question.source + "+++\n" +
           (question.siFaux ? question.siFaux->source : std::string()) + told(question.faults);
}

TEST(Corpus, compilesAsBefore) {
    ASSERT_GE(markdownFiles().size(), 20u);
    for (const fs::path& file : markdownFiles()) {
        const fs::path expected = fs::path(file).replace_extension(".txt");
        if (std::getenv("ORVALENTE_WRITE_CORPUS"))
            std::ofstream(expected, std::ios::binary) << compiledFile(file);
        EXPECT_EQ(compiledFile(file), readFile(expected)) << file;
    }
}

TEST(Corpus, printsEveryWord) {
    for (const fs::path& file : markdownFiles()) {
        if (file.parent_path().filename() == "questions")
            continue;
        const std::string body = bodyOf(file);
        const auto page = compiler().page(body, 1, {});
        EXPECT_EQ(told(page.faults), "") << file;
        const QString shown = printed(page.text);
        for (const QString& word : wordsToPrint(body))
            EXPECT_TRUE(shown.contains(word)) << file << ' ' << word.toStdString();
        EXPECT_EQ(lostLetters(body, shown), QString()) << file;
    }
}

TEST(Corpus, tellsTheMarkdownLineOfEveryCompiledLine) {
    for (const fs::path& file : markdownFiles()) {
        const std::string body = bodyOf(file);
        const auto text = compiler().page(body, 5, {}).text;
        const auto lines = std::count(text.source.begin(), text.source.end(), '\n');
        ASSERT_EQ(static_cast<std::ptrdiff_t>(text.markdownLines.size()), lines) << file;
        for (const int line : text.markdownLines) {
            EXPECT_GE(line, 5) << file;
            EXPECT_LE(line, 5 + std::count(body.begin(), body.end(), '\n')) << file;
        }
    }
    const auto text = compiler().page("Un\n\n- Deux\n- Trois *x*\n", 10, {}).text;
    const std::string& source = text.source;
    const auto lineOf = [&](const char* words) {
        const auto before = source.substr(0, source.find(words));
        return text.markdownLines.at(
            static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')));
    };
    EXPECT_EQ(lineOf("Un"), 10);
    EXPECT_EQ(lineOf("Deux"), 12);
    EXPECT_EQ(lineOf("Trois"), 13);
    const auto listing = compiler().page("```\na\n\n    b\n```\n", 10, {}).text;
    EXPECT_EQ(listing.markdownLines.at(listing.markdownLines.size() - 4), 13);
}

/// The listings of a document between fences.
std::vector<std::string> listings(const std::string& document, const std::string& fence) {
    std::vector<std::string> found;
    std::size_t start = 0;
    while ((start = document.find("\n" + fence + "\n", start)) != std::string::npos) {
        start += fence.size() + 2;
        const std::size_t end =
            document.find("\n" + fence.substr(0, fence.find('m')) + "\n", start - 1);
        if (end == std::string::npos)
            break;
        found.push_back(document.substr(start, end + 1 - start));
        start = end;
    }
    return found;
}

TEST(AuthorsCard, hasListingsThatCompile) {
    const std::string card = readFile(AUTHORS_CARD);
    const auto pages = listings(card, "````markdown");
    const auto questions = listings(card, "````markdown question");
    ASSERT_GE(pages.size(), 8u);
    ASSERT_GE(questions.size(), 2u);
    for (const std::string& page : pages) {
        EXPECT_EQ(faultsOf(page), "") << page;
        const Drawn drawn(compiled(page));
        EXPECT_EQ(drawn.failures(), "") << page;
        EXPECT_GT(drawn.right(page::SurfaceId::PictureTexte) +
                      drawn.right(page::SurfaceId::PictureIllus),
                  0)
            << page;
        EXPECT_LE(drawn.right(page::SurfaceId::PictureTexte), 590) << page;
    }
    for (const std::string& text : questions) {
        const auto question = compiler().question(text, 1, {});
        EXPECT_EQ(told(question.faults), "") << text;
        EXPECT_EQ(Drawn(question.question.source).failures(), "") << text;
    }
}

} // namespace
