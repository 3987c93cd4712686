#include "coursetool/front_matter_check.h"

#include <algorithm>

namespace coursetool {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kKeyCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                            "abcdefghijklmnopqrstuvwxyz0123456789_-";
/// Of numbers, flags, dates and times.
constexpr std::string_view kValueCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                              "abcdefghijklmnopqrstuvwxyz0123456789_-+.: ";

/// Whether a single character stands alone behind a blank. The only blank within a value is that
/// between a date and its time, and no time is that short: of "1979-05-27 1" toml++ expects more.
bool hasLoneCharacter(std::string_view plain) {
    for (std::size_t at = plain.find(' '); at != plain.npos; at = plain.find(' ', at + 1))
        if (at + 1 < plain.size() && plain[at + 1] != ' ' &&
            (at + 2 == plain.size() || plain[at + 2] == ' '))
            return true;
    return false;
}

class Check {
public:
    explicit Check(std::string_view toml) : toml_(toml) {}

    std::optional<std::size_t> run() {
        while (!atEnd()) {
            if (const auto fault = statement())
                return fault;
            ++at_; // the line end
        }
        return std::nullopt;
    }

private:
    using Fault = std::optional<std::size_t>;

    bool atEnd() const { return at_ >= toml_.size(); }
    bool atLineEnd() const { return atEnd() || toml_[at_] == '\n'; }
    bool startsWith(std::string_view what) const { return toml_.substr(at_).starts_with(what); }

    void skip(std::string_view characters) {
        at_ = std::min(toml_.find_first_not_of(characters, at_), toml_.size());
    }

    /// One line, or the lines of a text that has several.
    Fault statement() {
        skip(kBlanks);
        const std::size_t key = at_;
        if (atLineEnd() || skipComment())
            return std::nullopt;
        if (!skipString())
            skip(kKeyCharacters);
        if (at_ == key)
            return key;
        skip(kBlanks);
        if (!startsWith("="))
            return key;
        ++at_;
        skip(kBlanks);
        const std::size_t value = at_;
        if (startsWith("_"))
            return value;
        if (!skipString()) {
            skip(kValueCharacters);
            if (hasLoneCharacter(toml_.substr(value, at_ - value)))
                return value;
        }
        skip(kBlanks);
        return atLineEnd() || skipComment() ? Fault() : value;
    }

    bool skipComment() {
        if (!startsWith("#"))
            return false;
        at_ = std::min(toml_.find('\n', at_), toml_.size());
        return true;
    }

    /// To behind a string of any kind; one without end goes on to the end of its line, or of all.
    bool skipString() {
        for (const std::string_view mark : {"\"\"\"", "'''", "\"", "'"}) {
            if (!startsWith(mark))
                continue;
            at_ += mark.size();
            while (!atEnd() && !startsWith(mark) && (mark.size() > 1 || toml_[at_] != '\n'))
                at_ += mark[0] == '"' && toml_[at_] == '\\' && at_ + 1 < toml_.size() &&
                               toml_[at_ + 1] != '\n'
                           ? 2
                           : 1;
            if (startsWith(mark))
                skipEnd(mark);
            return true;
        }
        return false;
    }

    /// A text of several lines may have two more quotation marks at its end.
    void skipEnd(std::string_view mark) {
        at_ += mark.size();
        for (int more = 0; mark.size() > 1 && more < 2 && startsWith(mark.substr(0, 1)); ++more)
            ++at_;
    }

    std::string_view toml_;
    std::size_t at_ = 0;
};

} // namespace

std::optional<std::size_t> firstUnreadable(std::string_view toml) {
    return Check(toml).run();
}

} // namespace coursetool
