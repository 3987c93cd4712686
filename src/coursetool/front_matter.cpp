#include "coursetool/front_matter.h"

#include "coursetool/field_value.h"
#include "coursetool/front_matter_check.h"
#include "jet/names.h"
#include "text/utf8.h"

// Syntax errors are expected in sources: they come back as values.
#define TOML_EXCEPTIONS 0
#define TOML_HEADER_ONLY 1
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

#include <algorithm>

namespace coursetool {

namespace {

/// Syntax errors told in one source; beyond these it is no front matter at all.
constexpr int kMaxSyntaxFaults = 20;

std::string_view lineOf(std::string_view text, int number) {
    for (; number > 1; --number) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            return {};
        text.remove_prefix(end + 1);
    }
    return text.substr(0, text.find('\n'));
}

toml::source_position positionOf(std::size_t offset, std::string_view text) {
    const std::string_view before = text.substr(0, offset);
    const std::size_t lineStart = before.rfind('\n') + 1; // 0 in the first line
    const std::string_view line = before.substr(lineStart);
    const auto isStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return {static_cast<toml::source_index>(1 + std::count(before.begin(), before.end(), '\n')),
            static_cast<toml::source_index>(1 + std::count_if(line.begin(), line.end(), isStart))};
}

/// What is enough to find it again: a damaged line can be as long as the file.
std::string shortened(std::string_view words) {
    constexpr std::size_t kEnough = 120;
    if (words.size() <= kEnough)
        return std::string(words);
    std::size_t end = kEnough;
    while (end > 0 && (static_cast<unsigned char>(words[end]) & 0xC0) == 0x80)
        --end;
    return std::string(words.substr(0, end)) + "…";
}

class FieldReader {
public:
    FieldReader(std::string_view toml, int firstLine, const std::string& file,
                std::span<const FieldRule> rules, Report& report)
        : toml_(toml), firstLine_(firstLine), file_(file), rules_(rules), report_(report) {}

    Fields read() {
        start();
        const toml::table table = parse();
        for (const Entry& entry : inLineOrder(table))
            take(entry);
        if (!syntaxFaults_)
            checkRequired();
        return std::move(fields_);
    }

private:
    struct Entry {
        const toml::key* key;
        const toml::node* node;
    };

    void start() {
        fields_.values.resize(rules_.size());
        fields_.places.resize(rules_.size());
        for (std::size_t i = 0; i < rules_.size(); ++i)
            if (rules_[i].type == jet::ColumnType::Boolean)
                fields_.values[i] = false;
    }

    /// The parser stops at the first error. The line at fault is blanked and the rest read again,
    /// so that one run names them all.
    toml::table parse() {
        std::string text(toml_);
        for (int faults = 0; faults < kMaxSyntaxFaults; ++faults) {
            const auto unreadable = firstUnreadable(text);
            toml::source_position at{};
            if (unreadable) {
                at = positionOf(*unreadable, text);
                tellSyntax({}, at);
            } else {
                toml::parse_result result = toml::parse(text);
                if (result)
                    return std::move(result).table();
                at = result.error().source().begin;
                tellSyntax(result.error().description(), at);
            }
            syntaxFaults_ = true;
            const std::string_view line = lineOf(text, static_cast<int>(at.line));
            if (line.find_first_not_of(' ') == std::string_view::npos)
                break; // nothing left to blank: the error runs over several lines
            const auto offset = static_cast<std::size_t>(line.data() - text.data());
            text.replace(offset, line.size(), line.size(), ' ');
        }
        return {};
    }

    void tellSyntax(std::string_view description, toml::source_position at) {
        const std::string_view line = lineOf(toml_, static_cast<int>(at.line));
        if (description.find("redefine") != std::string_view::npos)
            report_.fault(place(at), "ce champ est déjà donné plus haut : n’en garder qu’un");
        else
            report_.fault(place(at), inQuotes(shortened(line)) +
                                         " ne se lit pas : écrire « champ = valeur », "
                                         "un texte entre guillemets");
    }

    static std::vector<Entry> inLineOrder(const toml::table& table) {
        std::vector<Entry> entries;
        for (const auto& [key, node] : table)
            entries.push_back({&key, &node});
        std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
            return a.key->source().begin < b.key->source().begin;
        });
        return entries;
    }

    void take(const Entry& entry) {
        const auto rule = std::find_if(rules_.begin(), rules_.end(), [&](const FieldRule& r) {
            return r.name == entry.key->str();
        });
        if (rule == rules_.end()) {
            tellUnknown(*entry.key);
            return;
        }
        const auto index = static_cast<std::size_t>(rule - rules_.begin());
        fields_.places[index] = place(entry.node->source().begin);
        FieldResult result = toField(*rule, sourceValue(*entry.node));
        if (result.complaint.empty())
            fields_.values[index] = std::move(result.value);
        else
            report_.fault(fields_.places[index], result.complaint);
    }

    static SourceValue sourceValue(const toml::node& node) {
        if (const auto* flag = node.as_boolean())
            return flag->get();
        if (const auto* number = node.as_integer())
            return number->get();
        if (const auto* number = node.as_floating_point())
            return number->get();
        if (const auto* text = node.as_string())
            return text->get();
        return {};
    }

    void tellUnknown(const toml::key& key) {
        std::string names;
        for (const FieldRule& rule : rules_) {
            if (jet::sameName(text::toUtf16(rule.name), text::toUtf16(key.str()))) {
                report_.fault(place(key.source().begin), "champ inconnu " +
                                                             inQuotes(shortened(key.str())) +
                                                             " : écrire " + inQuotes(rule.name));
                return;
            }
            names.append(names.empty() ? "" : ", ").append(rule.name);
        }
        report_.fault(place(key.source().begin), "champ inconnu " + inQuotes(shortened(key.str())) +
                                                     " : les champs sont " + names);
    }

    void checkRequired() {
        for (std::size_t i = 0; i < rules_.size(); ++i) {
            const FieldRule& rule = rules_[i];
            if (rule.required && fields_.places[i].line == 0)
                report_.fault(
                    {file_, 1, 1},
                    "le champ " + inQuotes(rule.name) + " manque : écrire par exemple " +
                        inQuotes(std::string(rule.name) + " = " + std::string(rule.example)));
        }
    }

    Place place(toml::source_position at) const {
        return {file_, firstLine_ - 1 + static_cast<int>(at.line), static_cast<int>(at.column)};
    }

    std::string_view toml_;
    int firstLine_;
    const std::string& file_;
    std::span<const FieldRule> rules_;
    Report& report_;
    Fields fields_;
    bool syntaxFaults_ = false;
};

} // namespace

Fields readFields(std::string_view toml, int firstLine, const std::string& file,
                  std::span<const FieldRule> rules, Report& report) {
    return FieldReader(toml, firstLine, file, rules, report).read();
}

} // namespace coursetool
