#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace app {

/// What a subcommand takes. Values are UTF-8 as they were typed, and stay as they are where an
/// option is left out; the references must outlive the reading. Descriptions are lines of the help.
class Options {
public:
    explicit Options(CLI::App& command);

    // Arguments without a name, in their order.
    void argument(const char* name, std::string& value, const char* description);
    void argument(const char* name, std::optional<std::string>& value, const char* description);
    void arguments(const char* name, std::vector<std::string>& values, const char* description);

    /// `names`: "--page" or "-o,--output"; `kind`: what the help calls the value.
    void option(const char* names, const char* kind, std::string& value,
                const std::string& description);
    /// One that may come several times; each time with one value.
    void option(const char* names, const char* kind, std::vector<std::string>& values,
                const std::string& description);
    void flag(const char* name, bool& value, const char* description);

    /// What the help says last: calls that make sense, and after them what there is to tell.
    void example(const char* call);
    void footer(const char* text);

    // What several subcommands take.
    void course(std::string& directory); ///< a course that is installed
    void page(std::string& number);
    void pageOrQuestion(std::string& page, std::string& question);
    void output(const char* kind, std::string& path, const char* description);
    void drives(std::vector<std::string>& drives);

private:
    CLI::App& command_;
    std::string examples_;
    std::string footer_; ///< at first that of the program, which tells the exit statuses
};

// "--" before arguments that are no options, whatever they look like: the parser, which knows it in
// front of some arguments only, is given such arguments behind a sign that keeps them from being
// taken for options, and the values are read without it.
void hideFromOptions(std::string& argument);
std::string asTyped(const std::string& value);

} // namespace app
