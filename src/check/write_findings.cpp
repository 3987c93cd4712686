#include "check/write_findings.h"

#include "coursetool/json_string.h"
#include "text/utf8.h"

#include <array>

namespace check {

namespace {

struct SeverityWords {
    const char* one;
    const char* several;
};

SeverityWords wordsFor(Severity severity) {
    switch (severity) {
    case Severity::Fault:
        return {"faute", "fautes"};
    case Severity::Warning:
        return {"avertissement", "avertissements"};
    default:
        return {"conseil", "conseils"};
    }
}

constexpr std::array kSeverities = {Severity::Fault, Severity::Warning, Severity::Advice};

std::string placeOf(const Finding& finding) {
    std::string text = finding.place.file;
    const auto number = [](const char* before, int value) {
        return before + std::to_string(value);
    };
    if (!finding.record.empty()) {
        text += ": " + finding.record;
        return finding.place.line > 0 ? text + number(", ligne ", finding.place.line) : text;
    }
    if (finding.place.line > 0)
        text += number(":", finding.place.line);
    if (finding.place.line > 0 && finding.place.column > 0)
        text += number(":", finding.place.column);
    return text;
}

std::string counted(const std::vector<Finding>& findings) {
    std::string text;
    for (const Severity severity : kSeverities) {
        std::size_t count = 0;
        for (const Finding& finding : findings)
            count += finding.rule->severity == severity;
        if (count > 0)
            text += (text.empty() ? "" : ", ") + std::to_string(count) + ' ' +
                    (count == 1 ? wordsFor(severity).one : wordsFor(severity).several);
    }
    return text.empty() ? "rien à redire" : text;
}

void writeText(const std::vector<Finding>& findings, coursetool::OutputBuffer& out) {
    std::size_t safe = 0;
    for (const Finding& finding : findings) {
        out.text() +=
            text::plainLine(placeOf(finding) + ": " + wordsFor(finding.rule->severity).one + " : " +
                            withCode(finding)) +
            '\n';
        safe += finding.edit && finding.edit->safe;
        if (!out.lineDone())
            return;
    }
    out.text() += counted(findings);
    if (safe > 0)
        out.text() += " ; « --fix » en corrige " + std::to_string(safe);
    if (!findings.empty())
        out.text() += " ; « --explain " + std::string(findings.front().rule->code) +
                      " » dit ce que veut la règle";
    out.text() += '\n';
}

void writeField(const char* name, std::string_view value, std::string& out) {
    out.append(out.back() == '{' ? "\"" : ",\"").append(name).append("\":");
    coursetool::appendJsonString(value, out);
}

void writeField(const char* name, int value, std::string& out) {
    out.append(out.back() == '{' ? "\"" : ",\"").append(name).append("\":");
    out += std::to_string(value);
}

void writeJson(const std::vector<Finding>& findings, coursetool::OutputBuffer& out) {
    for (const Finding& finding : findings) {
        std::string& text = out.text();
        text += '{';
        writeField("code", finding.rule->code, text);
        writeField("name", finding.rule->name, text);
        writeField("severity", wordsFor(finding.rule->severity).one, text);
        writeField("file", finding.place.file, text);
        if (!finding.record.empty())
            writeField("record", finding.record, text);
        if (finding.place.line > 0)
            writeField("line", finding.place.line, text);
        if (finding.place.line > 0 && finding.place.column > 0)
            writeField("column", finding.place.column, text);
        writeField("sentence", finding.sentence, text);
        if (finding.edit) {
            text += ",\"fix\":{";
            writeField("line", finding.edit->line, text);
            writeField("before", finding.edit->before, text);
            writeField("after", finding.edit->after, text);
            text += finding.edit->safe ? ",\"safe\":true}" : ",\"safe\":false}";
        }
        text += "}\n";
        if (!out.lineDone())
            return;
    }
}

} // namespace

std::string withCode(const Finding& finding) {
    return finding.sentence + " [" + std::string(finding.rule->code) + "]";
}

void writeFindings(const std::vector<Finding>& findings, CheckFormat format,
                   coursetool::OutputBuffer& out) {
    switch (format) {
    case CheckFormat::Json:
        return writeJson(findings, out);
    case CheckFormat::Sarif:
        out.text() += sarifOf(findings) + '\n';
        return;
    default:
        return writeText(findings, out);
    }
}

std::string explanationOf(const Rule& rule) {
    return std::string(rule.code) + " (" + std::string(rule.name) + "), " +
           wordsFor(rule.severity).one + " : " + std::string(rule.title) + ".\n\n" +
           std::string(rule.explanation) + "\n";
}

std::string listOfRules() {
    std::string text;
    for (const Rule& rule : ruleTable())
        text += std::string(rule.code) + "  " + std::string(rule.title) + '\n';
    return text;
}

} // namespace check
