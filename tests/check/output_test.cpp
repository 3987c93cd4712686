// How findings are written, and that the manual knows every rule.

#include "check/checked.h"
#include "check/write_findings.h"
#include "coursetool/captured.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

struct Output : testing::Test {
    CheckedCourse course;

    Output() { course.setBody("A \"mot\"¶\n##SI9\n##SI12\n##POX590\nÉté \x1b[31m¶\n"); }

    std::string written(check::CheckFormat format) {
        return captured([&](auto& out) {
            coursetool::Report report;
            auto request = course.request();
            request.format = format;
            EXPECT_EQ(check::check(request, CheckedCourse::fonts(), out, report),
                      coursetool::ExitCode::Faults);
        });
    }
};

TEST_F(Output, isALineEachForPeople) {
    const std::string text = written(check::CheckFormat::Text);
    EXPECT_THAT(text, HasSubstr("pages/1.page:7:1: faute : « ##SI9 » : il faut 2 chiffres"));
    EXPECT_THAT(text, HasSubstr("écrire « ##SI09 » [L104]\n"));
    EXPECT_THAT(text, HasSubstr("2 fautes ; « --fix » en corrige 1 ; « --explain L104 »"));
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
}

TEST_F(Output, isAnObjectALineForPrograms) {
    const QByteArray text = QByteArray::fromStdString(written(check::CheckFormat::Json)).trimmed();
    const QList<QByteArray> lines = text.split('\n');
    ASSERT_EQ(lines.size(), 2);
    const QJsonObject first = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(first["code"], "L104");
    EXPECT_EQ(first["severity"], "faute");
    EXPECT_EQ(first["line"], 7);
    EXPECT_EQ(first["fix"]["before"], "##SI9");
    EXPECT_EQ(first["fix"]["after"], "##SI09");
    EXPECT_EQ(first["fix"]["safe"], true);
    const QJsonObject second = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(second["name"], "texte-coupe");
    EXPECT_FALSE(second.contains("fix"));
}

TEST_F(Output, isASarifLogThatRefersToItsOwnRules) {
    const auto text = QByteArray::fromStdString(written(check::CheckFormat::Sarif));
    const QJsonObject document = QJsonDocument::fromJson(text).object();
    EXPECT_EQ(document["version"], "2.1.0");
    const QJsonObject run = document["runs"][0].toObject();
    const QJsonArray rules = run["tool"]["driver"]["rules"].toArray();
    EXPECT_EQ(run["tool"]["driver"]["name"], "orvalente-cours");
    const QJsonArray results = run["results"].toArray();
    ASSERT_EQ(results.size(), 2);
    for (const QJsonValue& result : results) {
        EXPECT_EQ(rules[result["ruleIndex"].toInt()]["id"], result["ruleId"]);
        EXPECT_EQ(rules[result["ruleIndex"].toInt()]["defaultConfiguration"]["level"],
                  result["level"]);
        EXPECT_FALSE(result["message"]["text"].toString().isEmpty());
    }
    const QJsonValue place = results[0]["locations"][0]["physicalLocation"];
    EXPECT_TRUE(place["artifactLocation"]["uri"].toString().endsWith("src/pages/1.page"));
    EXPECT_EQ(place["region"]["startLine"], 7);
    const QJsonValue replacement = results[0]["fixes"][0]["artifactChanges"][0]["replacements"][0];
    EXPECT_EQ(replacement["deletedRegion"]["endColumn"], 6);
    EXPECT_EQ(replacement["insertedContent"]["text"], "##SI09");
}

TEST_F(Output, saysSoWhenThereIsNothingToSay) {
    course.setBody("A¶\n");
    std::FILE* stream = std::tmpfile();
    coursetool::OutputBuffer out(stream);
    coursetool::Report report;
    EXPECT_EQ(check::check(course.request(), CheckedCourse::fonts(), out, report),
              coursetool::ExitCode::Fine);
    EXPECT_EQ(std::ftell(stream), static_cast<long>(std::string("rien à redire\n").size()));
    std::fclose(stream);
}

/// Sections "### L101 – directive inconnue (faute)" of the manual, in order, with what they say.
std::vector<std::pair<QString, QString>> sections() {
    QFile manual(QStringLiteral(CHECK_MANUAL));
    EXPECT_TRUE(manual.open(QIODevice::ReadOnly));
    std::vector<std::pair<QString, QString>> all;
    for (const QString& section : QString::fromUtf8(manual.readAll()).split("\n### ").mid(1))
        all.push_back(
            {section.section('\n', 0, 0), section.section('\n', 1).section("\n## ", 0, 0)});
    return all;
}

TEST(CheckManual, hasEveryRuleInTheWordsOfTheTable) {
    const auto all = sections();
    const auto table = check::ruleTable();
    ASSERT_EQ(all.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string words = check::explanationOf(table[i]);
        const QString severity =
            QString::fromStdString(words).section(", ", 1).section(" : ", 0, 0);
        const QString title = QString::fromUtf8(table[i].title.data());
        EXPECT_EQ(all[i].first,
                  QString::fromUtf8(table[i].code.data()) + " – " + title + " (" + severity + ")");
        const QString explanation = QString::fromUtf8(table[i].explanation.data());
        EXPECT_TRUE(all[i].second.simplified().contains(explanation)) << table[i].code;
        EXPECT_TRUE(all[i].second.contains("```")) << table[i].code;
    }
}

TEST(CheckManual, showsPagesThatHaveTheFaultItSpeaksOf) {
    static const QRegularExpression kPage("```page\\n(.*?)```",
                                          QRegularExpression::DotMatchesEverythingOption);
    int pages = 0;
    for (const auto& [heading, text] : sections()) {
        const auto example = kPage.match(text);
        if (!example.hasMatch())
            continue;
        const CheckedCourse course;
        course.setBody(example.captured(1).toStdString());
        std::vector<std::string> codes;
        for (const auto& finding : course.findings())
            codes.emplace_back(finding.rule->code);
        EXPECT_THAT(codes, testing::Each(heading.left(4).toStdString())) << heading.toStdString();
        EXPECT_FALSE(codes.empty()) << heading.toStdString();
        ++pages;
    }
    EXPECT_GT(pages, 30);
}

} // namespace
