#include "app/cours_command_line.h"
#include "coursetool/progress_line.h"

#include <cstdio>

int main(int argc, char** argv) {
    app::ToolRun run{argc, argv};
    coursetool::ProgressLine progress(stderr);
    run.report.onProgress([&](const char* what, std::size_t done, std::size_t all) {
        progress.tell(what, done, all);
    });
    const int status = app::runCoursCommandLine(run);
    progress.clear();
    for (const std::string& line : run.report.lines()) {
        std::fwrite(line.data(), 1, line.size(), stderr);
        std::fputc('\n', stderr);
    }
    return status;
}
