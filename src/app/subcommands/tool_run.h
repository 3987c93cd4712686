#pragma once

#include "authoring/compiled.h"
#include "coursetool/output_buffer.h"
#include "coursetool/report.h"

#include <cstdio>
#include <memory>

namespace CLI {
class App;
}

namespace app {

/// What a subcommand runs with.
struct ToolRun {
    int& argc;
    char** argv;
    coursetool::Report report = {};
    coursetool::OutputBuffer out{stdout};

    /// A function of the module that draws; a fault, and null, when it is not to be had.
    template <class Function>
    Function drawing(const char* symbol) {
        return reinterpret_cast<Function>(drawingFunction(symbol));
    }

    /// Makes std::cin and std::cout quick, for what reads the one and writes the other alone.
    static void useStreams();

    /// Exit status of a subcommand that wrote to std::cout and ended with `result`: that, unless it
    /// could not be written.
    int afterStreams(int result);

    /// Exit status that the report gives.
    int verdict() const;

    /// The compiler of Markdown, made when it is first needed; null, and a fault, without it.
    const authoring::Compiler* compiler();

    void* drawingFunction(const char* symbol);

    std::unique_ptr<authoring::Compiler> markdown = nullptr; ///< see compiler()
    const CLI::App* parser = nullptr; ///< all that can be called, for who tells of it
};

} // namespace app
