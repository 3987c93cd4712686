#include "jet/csv_dump.h"

#include "jet/value_text.h"
#include "text/utf8.h"

#include <cstdlib>

namespace {

/// Takes one cell off the front of `text`, the separator behind it included.
DumpCell takeCell(std::string_view& text, bool& endsRow) {
    std::string cell;
    const bool quoted = text.starts_with('"');
    if (quoted) {
        text.remove_prefix(1);
        while (!text.empty() && (text[0] != '"' || text.substr(0, 2) == "\"\"")) {
            cell += text[0];
            text.remove_prefix(text[0] == '"' ? 2 : 1);
        }
        text.remove_prefix(text.empty() ? 0 : 1);
    } else {
        const std::size_t end = text.find_first_of(",\n");
        cell = text.substr(0, end);
        text.remove_prefix(cell.size());
    }
    endsRow = text.empty() || text[0] == '\n';
    text.remove_prefix(text.empty() ? 0 : 1);
    if (!quoted && cell.empty())
        return std::nullopt;
    return cell;
}

std::string dateText(jet::DateTime date) {
    std::string text = toText(date).value_or("?");
    if (const auto t = text.find('T'); t != std::string::npos)
        text[t] = ' ';
    return text;
}

} // namespace

std::vector<DumpRow> parseDump(std::string_view text) {
    std::vector<DumpRow> rows;
    bool endsRow = true;
    while (!text.empty()) {
        if (endsRow)
            rows.emplace_back();
        rows.back().push_back(takeCell(text, endsRow));
    }
    return rows;
}

DumpCell dumpCell(const jet::Value& value) {
    if (const auto* boolean = value.as<bool>())
        return *boolean ? "1" : "0";
    if (const auto whole = value.integer())
        return std::to_string(*whole);
    if (const auto* text = value.text())
        return text::toUtf8(*text);
    if (const auto* currency = value.as<jet::Currency>())
        return toText(*currency);
    if (const auto* decimal = value.as<jet::Decimal>())
        return toText(*decimal);
    if (const auto* guid = value.as<jet::Guid>())
        return toText(*guid);
    if (const auto* date = value.as<jet::DateTime>())
        return dateText(*date);
    if (const auto* bytes = value.as<jet::Binary>())
        return jet::toHex(*bytes);
    if (const auto number = value.number())
        return std::to_string(*number);
    return std::nullopt;
}

bool sameCell(const DumpCell& expected, const jet::Value& value) {
    if (expected && value.as<float>())
        return std::strtof(expected->c_str(), nullptr) == *value.as<float>();
    if (expected && value.as<double>())
        return std::strtod(expected->c_str(), nullptr) == *value.as<double>();
    return expected == dumpCell(value);
}
