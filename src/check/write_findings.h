#pragma once

#include "check/check_request.h"
#include "check/rule.h"

#include <string>
#include <vector>

namespace check {

/// The sentence with its rule's code behind it, by which it can be asked about and silenced.
std::string withCode(const Finding& finding);

/// Text: a line each, and how many there are. Json: an object a line. Sarif: one document in the
/// Static Analysis Results Interchange Format 2.1.0 of OASIS.
void writeFindings(const std::vector<Finding>& findings, CheckFormat format,
                   coursetool::OutputBuffer& out);

/// What a rule is about, with its explanation; for a person.
std::string explanationOf(const Rule& rule);
/// All rules, a line each.
std::string listOfRules();

/// The findings as one SARIF document.
std::string sarifOf(const std::vector<Finding>& findings);

} // namespace check
