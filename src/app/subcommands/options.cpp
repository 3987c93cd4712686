#include "app/subcommands/options.h"

#include <CLI/CLI.hpp>

namespace app {

namespace {

/// No letter that a name of an option could start with.
constexpr char kNoOption = '\x1a';

/// Binds what is read to a value, as it was typed.
template <class Value>
auto into(Value& value) {
    return [&value](const std::string& read) { value = asTyped(read); };
}

} // namespace

void hideFromOptions(std::string& argument) {
    argument.insert(0, 1, kNoOption);
}

std::string asTyped(const std::string& value) {
    return value.starts_with(kNoOption) ? value.substr(1) : value;
}

Options::Options(CLI::App& command) : command_(command), footer_(command.get_footer()) {}

void Options::argument(const char* name, std::string& value, const char* description) {
    command_.add_option_function<std::string>(name, into(value), description)->type_name("");
}

void Options::argument(const char* name, std::optional<std::string>& value,
                       const char* description) {
    command_.add_option_function<std::string>(name, into(value), description)->type_name("");
}

void Options::arguments(const char* name, std::vector<std::string>& values,
                        const char* description) {
    command_
        .add_option_function<std::vector<std::string>>(
            name,
            [&values](const std::vector<std::string>& read) {
                for (const std::string& value : read)
                    values.push_back(asTyped(value));
            },
            description)
        ->type_name("")
        ->expected(0, -1);
}

void Options::option(const char* names, const char* kind, std::string& value,
                     const std::string& description) {
    command_.add_option_function<std::string>(names, into(value), description)->type_name(kind);
}

void Options::flag(const char* name, bool& value, const char* description) {
    command_.add_flag(name, value, description)->disable_flag_override();
}

void Options::example(const char* call) {
    examples_.append(examples_.empty() ? "Exemples :\n  " : "  ").append(call).append("\n");
    command_.footer(examples_ + "\n" + footer_);
}

void Options::footer(const char* text) {
    footer_ = text;
    command_.footer(examples_ + (examples_.empty() ? "" : "\n") + footer_);
}

void Options::course(std::string& directory) {
    argument("DOSSIER", directory, "Dossier d’installation");
}

void Options::page(std::string& number) {
    option("--page", "N", number, "Numéro de la page");
}

void Options::pageOrQuestion(std::string& page, std::string& question) {
    this->page(page);
    option("--question", "REF", question, "Référence de la question : 307");
}

void Options::output(const char* kind, std::string& path, const char* description) {
    option("-o,--output", kind, path, description);
}

void Options::option(const char* names, const char* kind, std::vector<std::string>& values,
                     const std::string& description) {
    command_
        .add_option_function<std::vector<std::string>>(
            names,
            [&values](const std::vector<std::string>& read) {
                for (const std::string& value : read)
                    values.push_back(asTyped(value));
            },
            description)
        ->type_name(kind)
        ->expected(1)
        ->take_all();
}

void Options::drives(std::vector<std::string>& drives) {
    option("--drive", "L=DOSSIER", drives,
           "Donne la lettre de lecteur L à un dossier, plusieurs fois si besoin");
}

} // namespace app
