#include "check/write_findings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace check {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QJsonObject message(std::string_view words) {
    return {{"text", text(words)}};
}

QString levelOf(Severity severity) {
    return severity == Severity::Fault     ? QStringLiteral("error")
           : severity == Severity::Warning ? QStringLiteral("warning")
                                           : QStringLiteral("note");
}

QJsonObject artifact(const std::string& file) {
    return {{"uri", QString::fromLatin1(QUrl::toPercentEncoding(text(file), "/"))}};
}

QJsonObject ruleObject(const Rule& rule) {
    return {{"id", text(rule.code)},
            {"name", text(rule.name)},
            {"shortDescription", message(rule.title)},
            {"fullDescription", message(rule.explanation)},
            {"defaultConfiguration", QJsonObject{{"level", levelOf(rule.severity)}}}};
}

QJsonObject locationOf(const Finding& finding) {
    QJsonObject physical{{"artifactLocation", artifact(finding.place.file)}};
    QJsonObject location;
    // A record of a database has no lines that a viewer of the file could show.
    if (finding.record.empty() && finding.place.line > 0) {
        QJsonObject region{{"startLine", finding.place.line}};
        if (finding.place.column > 0)
            region["startColumn"] = finding.place.column;
        physical["region"] = region;
    }
    location["physicalLocation"] = physical;
    if (!finding.record.empty())
        location["logicalLocations"] = QJsonArray{QJsonObject{
            {"fullyQualifiedName",
             text(finding.record) + (finding.place.line > 0
                                         ? QStringLiteral(", ligne %1").arg(finding.place.line)
                                         : QString())}}};
    return location;
}

QJsonObject fixOf(const Finding& finding) {
    const Edit& edit = *finding.edit;
    const QJsonObject region{
        {"startLine", edit.line},
        {"startColumn", 1},
        {"endLine", edit.line},
        {"endColumn", static_cast<qint64>(text(edit.before).toUcs4().size() + 1)}};
    const QJsonObject replacement{{"deletedRegion", region},
                                  {"insertedContent", message(edit.after)}};
    const QJsonObject change{{"artifactLocation", artifact(finding.place.file)},
                             {"replacements", QJsonArray{replacement}}};
    return {{"artifactChanges", QJsonArray{change}}};
}

QJsonObject resultOf(const Finding& finding) {
    QJsonObject result{{"ruleId", text(finding.rule->code)},
                       {"ruleIndex", static_cast<qint64>(finding.rule - ruleTable().data())},
                       {"level", levelOf(finding.rule->severity)},
                       {"message", message(finding.sentence)},
                       {"locations", QJsonArray{locationOf(finding)}}};
    if (finding.edit)
        result["fixes"] = QJsonArray{fixOf(finding)};
    return result;
}

} // namespace

std::string sarifOf(const std::vector<Finding>& findings) {
    QJsonArray rules;
    for (const Rule& rule : ruleTable())
        rules.append(ruleObject(rule));
    QJsonArray results;
    for (const Finding& finding : findings)
        results.append(resultOf(finding));
    const QJsonObject driver{{"name", "orvalente-cours"}, {"rules", rules}};
    const QJsonObject run{{"tool", QJsonObject{{"driver", driver}}},
                          {"language", "fr"},
                          {"columnKind", "unicodeCodePoints"},
                          {"results", results}};
    const QJsonObject document{{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                               {"version", "2.1.0"},
                               {"runs", QJsonArray{run}}};
    return QJsonDocument(document).toJson(QJsonDocument::Indented).trimmed().toStdString();
}

} // namespace check
