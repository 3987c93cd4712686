#include "markup/directive_table.h"
#include "markup/page_bench.h"

#include <gtest/gtest.h>

#include <set>

namespace {

/// The directives that are nothing else when something follows them; of all others the beginning
/// is enough.
const std::set<QString> kWhole = {"PLOUF", "CHAPEAU", "POINT", "FLECHE", "STAY", "K001", "K002",
                                  "K003",  "K004",    "K101",  "K102",   "K103", "K104"};

TEST(DirectiveTable, someKeywordsStandAloneOthersAreABeginning) {
    std::set<QString> whole;
    for (const markup::Directive& directive : markup::directiveTable()) {
        const QString keyword = directive.keyword.toString();
        EXPECT_TRUE(directive.matches(keyword)) << keyword.toStdString();
        EXPECT_FALSE(directive.matches(keyword.toLower())) << keyword.toStdString();
        EXPECT_FALSE(directive.matches(keyword.chopped(1))) << keyword.toStdString();
        EXPECT_FALSE(directive.matches(u' ' + keyword)) << keyword.toStdString();
        if (!directive.matches(keyword + u'x'))
            whole.insert(keyword);
    }
    EXPECT_EQ(whole, kWhole);
}

TEST(DirectiveTable, isFoundByFirstLettersInItsOrder) {
    std::size_t found = 0;
    for (char16_t first = 0; first < 300; ++first) {
        std::vector<const markup::Directive*> meant;
        for (const markup::Directive& directive : markup::directiveTable())
            if (directive.keyword.front() == QChar(first))
                meant.push_back(&directive);
        const auto rows = markup::directivesFrom(QChar(first));
        EXPECT_EQ(std::vector(rows.begin(), rows.end()), meant) << int{first};
        found += meant.size();
    }
    EXPECT_EQ(found, markup::directiveTable().size());
}

TEST(DirectiveTable, whatFollowsMakesNoDifferenceWhereABeginningIsEnough) {
    const char* const sources[] = {"##ALCE%1\na\n",
                                   "##UND1\n##UND0%1\na\n",
                                   "##BOL1%1\n##ITA1%1\na\n",
                                   "##SQD%1\na\n",
                                   "##DECABAS%1\na\n##DECAHADEF%1\nb\n",
                                   "##NUMERATEUR%1\na\n##DENOMINATEUR%1\nb\n##FINFRAC%1\n",
                                   "##TAB010020 1\na¶\n##FINTAB%1\n",
                                   "##OBJILLUS\na\n##EXOOP%1\n"};
    for (const char* source : sources) {
        const auto drawn = [&](const QString& more) {
            test_support::PageBench bench;
            bench.as = markup::DrawnAs::Question;
            return bench.draw(QString::fromUtf8(source).replace("%1", more));
        };
        EXPECT_EQ(drawn(" et plus"), drawn({})) << source;
        EXPECT_FALSE(drawn({}).isEmpty()) << source;
    }
}

} // namespace
