#include "app/subcommands/tool_run.h"

#include "coursetool/exit_code.h"
#include "coursetool/markdown_source.h"
#include "files/cause.h"
#include "platform/module.h"

#include <iostream>

namespace app {

void ToolRun::useStreams() {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
}

int ToolRun::afterStreams(int result) {
    if (std::cout.flush())
        return result;
    report.outputFailure(files::lastError());
    return verdict();
}

int ToolRun::verdict() const {
    using coursetool::ExitCode;
    return static_cast<int>(report.hasFailures() ? ExitCode::NotWritten
                            : report.hasFaults() ? ExitCode::Faults
                                                 : ExitCode::Fine);
}

const authoring::Compiler* ToolRun::compiler() {
    if (!markdown)
        if (const auto make = drawing<coursetool::MarkdownFunction>(coursetool::kMarkdownSymbol))
            markdown.reset(make(argc, argv));
    return markdown.get();
}

void* ToolRun::drawingFunction(const char* symbol) {
    const auto found = platform::loadModuleFunction(ORVALENTE_DRAWING_MODULE, symbol);
    if (!found.address)
        report.fault({ORVALENTE_DRAWING_MODULE},
                     "cette partie du programme manque, à réinstaller : " + found.reason);
    return found.address;
}

} // namespace app
