#include "app/subcommands/completion_scripts.h"

namespace app {

namespace {

enum class Values { Folders, Files, Words };

/// What may stand for a thing that the help calls so.
Values valuesOf(std::string_view kind) {
    if (kind == "DOSSIER" || kind == "SRC")
        return Values::Folders;
    const bool isFile = kind.starts_with("FICHIER") || kind.starts_with("PAGE") || kind == "SORTIE";
    return isFile ? Values::Files : Values::Words;
}

/// On one line; `stops` are the characters that the shell would not take for letters.
std::string escaped(std::string_view text, std::string_view stops) {
    std::string line;
    for (const char c : text) {
        if (stops.find(c) != stops.npos)
            line += '\\';
        line += c == '\n' ? ' ' : c;
    }
    return line;
}

std::string inQuotes(std::string_view text) {
    std::string word = "'";
    for (const char c : text)
        word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return word + '\'';
}

// bash

std::string bashWords(const CompletedCall& call, Values values) {
    std::string words;
    for (const CompletedOption& option : call.options)
        if (!option.kind.empty() && valuesOf(option.kind) == values)
            words += (option.letter.empty() ? "" : " -" + option.letter) + " --" + option.word;
    return words + ' ';
}

std::string bashScript(const std::vector<CompletedCall>& calls) {
    std::string names;
    std::string cases;
    for (const CompletedCall& call : calls) {
        names += call.name + ' ';
        std::string options;
        for (const CompletedOption& option : call.options)
            options += "--" + option.word + ' ';
        cases += "    " + call.name + ")\n        options=" + inQuotes(options) +
                 "\n        folders=" + inQuotes(bashWords(call, Values::Folders)) +
                 "\n        words=" + inQuotes(bashWords(call, Values::Words)) + " ;;\n";
    }
    return R"(_orvalente_cours() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    local options= folders= words= what=-f
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W ")" +
           names + R"(--help --version" -- "$word")
        return
    fi
    case ${COMP_WORDS[1]} in
)" + cases +
           R"(    *) return ;;
    esac
    case $words in *" $before "*) return ;; esac
    case $folders in *" $before "*) what=-d ;; esac
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        return
    fi
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen $what -- "$word")
}
complete -F _orvalente_cours orvalente-cours
)";
}

// zsh

std::string zshValue(std::string_view kind) {
    const Values values = valuesOf(kind);
    return ':' + escaped(kind, ":\\") +
           (values == Values::Folders ? ":_directories"
            : values == Values::Files ? ":_files"
                                      : ": ");
}

std::string zshOption(const CompletedOption& option) {
    const std::string word = "--" + option.word;
    const std::string names = option.letter.empty() ? word
                                                    : "'(-" + option.letter + ' ' + word + ")'{-" +
                                                          option.letter + ',' + word + '}';
    return names + inQuotes('[' + escaped(option.description, "[]\\") + ']' +
                            (option.kind.empty() ? "" : zshValue(option.kind)));
}

std::string zshScript(const std::vector<CompletedCall>& calls) {
    std::string names;
    std::string cases;
    for (const CompletedCall& call : calls) {
        names += "        " + inQuotes(call.name + ':' + escaped(call.description, "\\")) + '\n';
        cases += "    " + call.name + ") _arguments";
        for (const CompletedOption& option : call.options)
            cases += " \\\n        " + zshOption(option);
        for (const std::string& argument : call.arguments)
            cases += " \\\n        " + inQuotes(':' + zshValue(argument).substr(1));
        cases += " ;;\n";
    }
    return "#compdef orvalente-cours\n_orvalente_cours() {\n    local -a calls\n    calls=(\n" +
           names + R"(    )
    if ((CURRENT == 2)); then
        _describe sous-commande calls
        return
    fi
    shift words
    ((CURRENT--))
    case $words[1] in
)" + cases +
           "    esac\n}\n_orvalente_cours \"$@\"\n";
}

// fish

std::string fishOption(const CompletedCall& call, const CompletedOption& option) {
    std::string line = "complete -c orvalente-cours -n '__fish_seen_subcommand_from " + call.name +
                       "' -l " + option.word;
    if (!option.letter.empty())
        line += " -s " + option.letter;
    if (!option.kind.empty())
        line += valuesOf(option.kind) == Values::Words ? " -x" : " -r -F";
    return line + " -d " + inQuotes(escaped(option.description, "\\")) + '\n';
}

std::string fishScript(const std::vector<CompletedCall>& calls) {
    std::string script = "complete -c orvalente-cours -f\n";
    for (const CompletedCall& call : calls) {
        script += "complete -c orvalente-cours -n __fish_use_subcommand -a " + call.name + " -d " +
                  inQuotes(escaped(call.description, "\\")) + '\n';
        for (const CompletedOption& option : call.options)
            script += fishOption(call, option);
        for (const std::string& argument : call.arguments)
            if (valuesOf(argument) != Values::Words)
                script += "complete -c orvalente-cours -n '__fish_seen_subcommand_from " +
                          call.name + "' -F\n";
    }
    return script;
}

} // namespace

std::optional<std::string> completionScript(std::string_view shell,
                                            const std::vector<CompletedCall>& calls) {
    if (shell == "bash")
        return bashScript(calls);
    if (shell == "zsh")
        return zshScript(calls);
    if (shell == "fish")
        return fishScript(calls);
    return std::nullopt;
}

} // namespace app
