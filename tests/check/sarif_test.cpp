// The findings as a SARIF log, against the objects of SARIF 2.1.0 (OASIS standard, sections 3.3 to
// 3.57) that we write: which properties they may have, which they must, and what stands in each.

#include "check/checked.h"
#include "check/write_findings.h"
#include "coursetool/build.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

#include <gmock/gmock.h>

#include <map>

namespace {

/// `what`: the name of an object, "[object]" for a list of them, "[object]+" for one that is not
/// empty, or a regular expression of a text or of a whole number.
struct Property {
    const char* name;
    QString what;
    bool isRequired = false;
};

constexpr char kText[] = "/.+/";
constexpr char kFromOne[] = "/[1-9][0-9]*/";
constexpr char kLevel[] = "/none|note|warning|error/";

const std::map<QString, std::vector<Property>>& objects() {
    static const std::map<QString, std::vector<Property>> kObjects = {
        {"sarifLog",
         {{"$schema", "uri"}, {"version", "/2\\.1\\.0/", true}, {"runs", "[run]", true}}},
        {"run",
         {{"tool", "tool", true},
          {"language", "/[a-z]{2}(-[A-Z]{2})?/"},
          {"columnKind", "/utf16CodeUnits|unicodeCodePoints/"},
          {"results", "[result]"}}},
        {"tool", {{"driver", "toolComponent", true}}},
        {"toolComponent", {{"name", kText, true}, {"rules", "[reportingDescriptor]"}}},
        {"reportingDescriptor",
         {{"id", kText, true},
          {"name", kText},
          {"shortDescription", "multiformatMessageString"},
          {"fullDescription", "multiformatMessageString"},
          {"defaultConfiguration", "reportingConfiguration"}}},
        {"multiformatMessageString", {{"text", kText, true}}},
        {"reportingConfiguration", {{"level", kLevel}}},
        {"result",
         {{"ruleId", kText},
          {"ruleIndex", "/-1|[0-9]+/"},
          {"level", kLevel},
          {"message", "message", true},
          {"locations", "[location]"},
          {"fixes", "[fix]"}}},
        {"message", {{"text", kText, true}}},
        {"location",
         {{"physicalLocation", "physicalLocation"}, {"logicalLocations", "[logicalLocation]"}}},
        {"physicalLocation",
         {{"artifactLocation", "artifactLocation", true}, {"region", "region"}}},
        {"artifactLocation", {{"uri", "uri", true}}},
        {"logicalLocation", {{"fullyQualifiedName", kText}}},
        {"region",
         {{"startLine", kFromOne, true},
          {"startColumn", kFromOne},
          {"endLine", kFromOne},
          {"endColumn", kFromOne}}},
        {"fix", {{"artifactChanges", "[artifactChange]+", true}}},
        {"artifactChange",
         {{"artifactLocation", "artifactLocation", true},
          {"replacements", "[replacement]+", true}}},
        {"replacement",
         {{"deletedRegion", "region", true}, {"insertedContent", "artifactContent"}}},
        {"artifactContent", {{"text", "/.*/"}}},
    };
    return kObjects;
}

/// What is wrong with a log, a line for each fault: where it is, and what.
class Judge {
public:
    static QStringList faultsIn(const QJsonObject& log) {
        Judge judge;
        judge.object("sarifLog", log, "log");
        return judge.faults_;
    }

private:
    void object(const QString& kind, const QJsonObject& value, const QString& where) {
        const std::vector<Property>& properties = objects().at(kind);
        for (const Property& property : properties) {
            const QString name = QLatin1String(property.name);
            if (value.contains(name))
                judge(property.what, value[name], where + '.' + name);
            else if (property.isRequired)
                faults_.append(where + " has no " + name);
        }
        for (const QString& name : value.keys())
            if (std::none_of(properties.begin(), properties.end(),
                             [&](const Property& known) { return name == known.name; }))
                faults_.append(where + " has " + name + ", which is none of " + kind);
    }

    void judge(const QString& what, const QJsonValue& value, const QString& where) {
        if (what.startsWith('['))
            list(what, value, where);
        else if (what.startsWith('/'))
            text(what, value, where);
        else if (what == "uri")
            uri(value, where);
        else if (value.isObject())
            object(what, value.toObject(), where);
        else
            faults_.append(where + " is no object");
    }

    void list(const QString& what, const QJsonValue& value, const QString& where) {
        const QJsonArray items = value.toArray();
        if (!value.isArray() || (what.endsWith('+') && items.isEmpty()))
            faults_.append(where + " is no list, or an empty one");
        for (qsizetype i = 0; i < items.size(); ++i)
            judge(what.section(']', 0, 0).sliced(1), items[i],
                  where + '[' + QString::number(i) + ']');
    }

    void text(const QString& what, const QJsonValue& value, const QString& where) {
        const bool isNumber = value.isDouble();
        const QString shown =
            isNumber ? QString::number(value.toDouble(), 'g', 17) : value.toString();
        const QRegularExpression expected(
            QRegularExpression::anchoredPattern(what.section('/', 1, -2)),
            QRegularExpression::DotMatchesEverythingOption);
        const bool wantsNumber = what == kFromOne || what.contains("-1|");
        if (isNumber != wantsNumber || !expected.match(shown).hasMatch())
            faults_.append(where + " is \"" + shown + '"');
    }

    void uri(const QJsonValue& value, const QString& where) {
        if (value.toString().isEmpty() || !QUrl(value.toString(), QUrl::StrictMode).isValid())
            faults_.append(where + " is no URI: " + value.toString());
    }

    QStringList faults_;
};

std::string inOneLineEach(const QStringList& faults) {
    return faults.join('\n').toStdString();
}

QJsonObject sarif(const std::vector<check::Finding>& findings) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(check::sarifOf(findings))).object();
}

TEST(Sarif, isWhatTheStandardAsksFor) {
    CheckedCourse course;
    EXPECT_EQ(inOneLineEach(Judge::faultsIn(sarif({}))), "");
    // About a line with a fix, without one, a whole file, and a name that is no URI as it stands.
    course.setBody("A \"mot\"¶\n##SI9\n##SI12\n##POX590\nÉté \x1b[31m¶\n##IMAnone.png\n");
    course.work.write("src/pages/a:b 100%é.page", CheckedCourse::page("Numeropage = 9", "A¶\nB"));
    course.work.write("src/pages/half.page", "+++\n");
    const auto findings = course.findings();
    ASSERT_GE(findings.size(), 5u);
    EXPECT_EQ(inOneLineEach(Judge::faultsIn(sarif(findings))), "");
}

TEST(Sarif, ofAnInstalledCourseToo) {
    const CheckedCourse course;
    course.setBody("##SI9\nA¶\n");
    coursetool::Report report;
    ASSERT_TRUE(coursetool::build(course.work.path("src"), course.work.path("out"), report));
    const auto findings = course.findings("out");
    ASSERT_FALSE(findings.empty());
    const QJsonObject log = sarif(findings);
    EXPECT_EQ(inOneLineEach(Judge::faultsIn(log)), "");
    const QJsonValue location = log["runs"][0]["results"][0]["locations"][0];
    EXPECT_EQ(location["logicalLocations"][0]["fullyQualifiedName"], "page 1, ligne 1");
}

/// The judge itself: a log that is spoilt is found out.
TEST(Sarif, isJudgedAtAll) {
    const CheckedCourse course;
    course.setBody("##SI9\nA¶\n");
    QJsonObject log = sarif(course.findings());
    ASSERT_EQ(Judge::faultsIn(log).size(), 0);
    log["version"] = "2.0.0";
    log["run"] = QJsonArray();
    QJsonObject run = log["runs"][0].toObject();
    QJsonArray results = run["results"].toArray();
    results[0] = QJsonObject{{"level", "fatal"}, {"ruleIndex", "3"}};
    run["results"] = results;
    log["runs"] = QJsonArray{run};
    EXPECT_EQ(inOneLineEach(Judge::faultsIn(log)), "log.version is \"2.0.0\"\n"
                                                   "log.runs[0].results[0].ruleIndex is \"3\"\n"
                                                   "log.runs[0].results[0].level is \"fatal\"\n"
                                                   "log.runs[0].results[0] has no message\n"
                                                   "log has run, which is none of sarifLog");
}

} // namespace
