#include "faults/faulty_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

/// In the child: what the command is to find.
void prepare(const CallFaults& faults, const fs::path& log, const fs::path& said) {
    setenv("FAULTS_BELOW", faults.below.c_str(), 1);
    setenv("FAULTS_HOW", std::string(faults.manner).c_str(), 1);
    setenv("FAULTS_AT", std::to_string(faults.at).c_str(), 1);
    setenv("FAULTS_LOG", log.c_str(), 1);
    const std::string run = faults.below.string() + ".run";
    mkdir(run.c_str(), 0700);
    setenv("XDG_RUNTIME_DIR", run.c_str(), 1);
    setenv("TMPDIR", faults.below.c_str(), 1); // what passes there is written, too
    setenv("LD_PRELOAD", WRITE_FAULTS, 1);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(name);
    const int file = open(said.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    dup2(file, STDOUT_FILENO);
    dup2(file, STDERR_FILENO);
}

} // namespace

std::string contentOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

FaultyOutcome runWithFaults(const std::vector<std::string>& command, const CallFaults& faults) {
    const fs::path log = faults.below.string() + ".calls";
    const fs::path said = faults.below.string() + ".said";
    fs::remove(log);
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        prepare(faults, log, said);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    FaultyOutcome outcome;
    outcome.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    EXPECT_TRUE(outcome.killed || WIFEXITED(status)) << "signal " << WTERMSIG(status);
    outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    outcome.said = contentOf(said);
    std::ifstream calls(log);
    for (std::string line; std::getline(calls, line);)
        outcome.writes.push_back(line);
    return outcome;
}
