#include "faults/fault_scenario.h"

#include "faults/faulty_program.h"

#include <gtest/gtest.h>

#include <regex>

namespace {

namespace fs = std::filesystem;

std::string text(const Workspace& work, const char* relative) {
    return work.path(relative).string();
}

void writeSources(const Workspace& work, const std::string& folder, const std::string& words) {
    work.write(folder + "/pages/1.page",
               "+++\nNumeropage = 1\ntitre = \"" + words + "\"\n+++\n" + words + "¶\n");
    work.write(folder + "/pages/2.page", "+++\nNumeropage = 2\n+++\nDeux, " + words + "¶\n");
    work.write(folder + "/exercises/t/chapter.toml", "Chapitre = 1\n");
    work.write(folder + "/exercises/t/1.question",
               "+++\nREFERENCE = 101\ntype = 1\nsolution = \"1\"\n+++\n" + words + "¶\n");
    work.write(folder + "/files/a.txt", words);
    work.write(folder + "/files/sub/b.txt", std::string(100'000, words[0]));
    work.write(folder + "/disc/ZEKXDATA/d.txt", words);
}

void call(const std::vector<std::string>& command) {
    const Workspace scratch;
    const FaultyOutcome outcome = runWithFaults(command, {scratch.path()});
    ASSERT_EQ(outcome.code, 0) << outcome.said;
}

/// Two courses in "course/old" and "course/new", their sources beside them.
void buildCourses(const Workspace& work) {
    for (const char* const age : {"old", "new"}) {
        writeSources(work, std::string("sources/") + age, age);
        call({COURS_PROGRAM, "build", text(work, "sources/") + age, "-o",
              text(work, "course/") + age});
    }
    fs::create_directory(work.path("area"));
}

/// Words that begin with a slash are paths in the workspace.
std::vector<std::string> commandOf(const Workspace& work, const std::vector<std::string>& words) {
    std::vector<std::string> command;
    for (const std::string& word : words)
        command.push_back(word.starts_with('/') ? work.path(word.substr(1)).string() : word);
    command.insert(command.begin(), COURS_PROGRAM);
    return command;
}

std::function<void(const Workspace&)> written(const std::vector<std::string>& words) {
    return [words](const Workspace& work) {
        buildCourses(work);
        call(commandOf(work, words));
    };
}

std::function<std::vector<std::string>(const Workspace&)>
tool(const std::vector<std::string>& words) {
    return [words](const Workspace& work) { return commandOf(work, words); };
}

/// The same for the program that changes files in place.
std::function<std::vector<std::string>(const Workspace&)>
writer(const std::vector<std::string>& words) {
    return [words](const Workspace& work) {
        std::vector<std::string> command = commandOf(work, words);
        command.front() = FAULT_WRITER;
        return command;
    };
}

void copyCourse(const Workspace& work) {
    buildCourses(work);
    fs::copy(work.path("course/old"), work.path("area"), fs::copy_options::recursive);
}

/// The records of the course, each for itself.
State rowsOf(const Workspace& work) {
    State state;
    for (const char* const table : {"DESCRIPTION", "Contenu"})
        for (const std::string& row : work.rows("area/qekx.mdb", table))
            state[table + std::to_string(state.size())] = row;
    return state;
}

/// The records of the status file, each for itself, as one who reads them has them.
State statusOf(const Workspace& work) {
    constexpr std::size_t kLength = 128;
    const std::string content = work.read("area/TEMPKX.TMP");
    State state;
    for (std::size_t at = 0; at < content.size(); at += kLength) {
        const std::string record = content.substr(at, kLength);
        const auto length = static_cast<unsigned char>(record[0]);
        state["record " + std::to_string(at / kLength + 1)] = record.substr(2, length);
    }
    return state;
}

void writeStatus(const Workspace& work) {
    fs::create_directory(work.path("area"));
    call(writer({"status", "/area/TEMPKX.TMP", "un texte d’avant"})(work));
}

/// Two files that fix changes.
void writeFaultySources(const Workspace& work) {
    for (const char* const name : {"1", "2"})
        work.write(std::string("area/pages/") + name + ".page",
                   std::string("+++\nNumeropage = ") + name + "\ntitre = \"x\"\n+++\n##CHAPEAU \n");
}

/// The day on which a document was made says nothing about it.
std::string withoutDates(std::string content) {
    static const std::regex kDate("D:[0-9]{14}[^)]*");
    return content.starts_with("%PDF") ? std::regex_replace(content, kDate, "D") : content;
}

} // namespace

const std::vector<FaultScenario>& faultScenarios() {
    static const std::vector<FaultScenario> kScenarios {
        {"build", written({"build", "/sources/old", "-o", "/area/out"}),
         tool({"build", "/sources/new", "-o", "/area/out"})},
            {"buildAnew", buildCourses, tool({"build", "/sources/new", "-o", "/area/out"})},
            {"extract", written({"extract", "/course/old", "-o", "/area/src"}),
             tool({"extract", "/course/new", "-o", "/area/src", "--force"}), Unit::Each},
            {"newCourse", buildCourses, tool({"new", "/area/mon-cours"}), Unit::All, false},
            {"newPage", written({"new", "/area/mon-cours"}),
             tool({"new", "/area/mon-cours", "--page", "Une page"}), Unit::Each, false},
            {"renderPng", written({"render", "/course/old", "--page", "1", "-o", "/area/p.png"}),
             tool({"render", "/course/new", "--page", "1", "-o", "/area/p.png"})},
            {"renderSvgs",
             written({"render", "/course/old", "--all", "--format", "svg", "-o", "/area/pages"}),
             tool({"render", "/course/new", "--all", "--format", "svg", "-o", "/area/pages"}),
             Unit::Each},
            {"renderPdf", written({"render", "/course/old", "--all", "-o", "/area/cours.pdf"}),
             tool({"render", "/course/new", "--all", "-o", "/area/cours.pdf"})},
            {"printPdf", written({"print", "/course/old", "--page", "1", "-o", "/area/f.pdf"}),
             tool({"print", "/course/new", "--page", "1", "-o", "/area/f.pdf"})},
            {"checkFix", writeFaultySources, tool({"check", "/area", "--fix"}), Unit::Each},
            {"editShorter",
             copyCourse,
             writer({"edit", "/area/qekx.mdb", "Contenu", "Question", "3"}),
             Unit::Each,
             true,
             rowsOf},
            {"editLonger",
             copyCourse,
             writer({"edit", "/area/qekx.mdb", "Contenu", "Question", "9000"}),
             Unit::Each,
             true,
             rowsOf},
            {"status",   writeStatus, writer({"status", "/area/TEMPKX.TMP", "autre"}),
             Unit::Each, true,        statusOf},
#if CAN_PUBLISH
            {"publish", written({"publish", "/course/old", "-o", "/area/site"}),
             tool({"publish", "/course/new", "-o", "/area/site"}), Unit::EachThenLast},
            {"publishScorm",
             written({"publish", "/course/old", "--scorm", "-o", "/area/cours.zip"}),
             tool({"publish", "/course/new", "--scorm", "-o", "/area/cours.zip"})},
#endif
    };
    return kScenarios;
}

State stateOf(const FaultScenario& scenario, const Workspace& work) {
    if (scenario.state)
        return scenario.state(work);
    State state;
    const fs::path area = work.path("area");
    for (const auto& entry : fs::recursive_directory_iterator(area)) {
        const std::string name = fs::relative(entry.path(), area).string();
        if (entry.is_directory())
            state[name + '/'];
        else
            state[name] = withoutDates(contentOf(entry.path()));
    }
    return state;
}
