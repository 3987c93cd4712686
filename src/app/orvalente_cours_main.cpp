#include "app/cours_command_line.h"

#include <cstdio>

int main(int argc, char** argv) {
    app::ToolRun run{argc, argv};
    const int status = app::runCoursCommandLine(run);
    for (const std::string& line : run.report.lines()) {
        std::fwrite(line.data(), 1, line.size(), stderr);
        std::fputc('\n', stderr);
    }
    return status;
}
