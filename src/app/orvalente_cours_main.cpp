#include "app/cours_command_line.h"
#include "coursetool/build.h"
#include "coursetool/convert.h"
#include "coursetool/dump.h"
#include "coursetool/exit_code.h"
#include "coursetool/extract.h"
#include "coursetool/search.h"
#include "coursetool/symbols.h"
#include "files/cause.h"
#include "platform/module.h"

#include <cstdio>
#include <iostream>
#include <memory>

namespace {

using coursetool::ExitCode;
using coursetool::OutputBuffer;
using coursetool::Report;

void print(std::FILE* stream, const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

/// Carries out one call, whatever its kind.
struct Perform {
    int& argc;
    char** argv;
    Report report;
    OutputBuffer out{stdout};
    std::unique_ptr<authoring::Compiler> markdown = nullptr;

    int operator()(const app::BuildCall& call) {
        coursetool::build(call.source, call.output, report, [this] { return compiler(); });
        return verdict();
    }
    int operator()(const app::ConvertCall& call) {
        if (const auto* const with = compiler())
            coursetool::convert(call.file, *with, out, report);
        return verdict();
    }
    int operator()(const app::ExtractCall& call) {
        coursetool::extract(call.course, call.output, report);
        return verdict();
    }
    int operator()(const app::DumpCall& call) {
        const ExitCode code = coursetool::dump(call.file, call.table, out, report);
        return report.hasFailures() ? verdict() : status(code);
    }
    int operator()(const app::TraceCall& call) {
        if (const auto run = drawing<coursetool::TraceFunction>(coursetool::kTraceSymbol))
            run(argc, argv, call, out, report);
        return verdict();
    }
    int operator()(const app::RenderCall& call) {
        if (const auto run = drawing<coursetool::RenderFunction>(coursetool::kRenderSymbol))
            run(argc, argv, call, report);
        return verdict();
    }
    int operator()(const app::CalcCall& call) {
        std::ios::sync_with_stdio(false);
        std::cin.tie(nullptr);
        const int error = calculator::runCalc(call, std::cin, std::cout, std::cerr);
        return afterOutput(error);
    }
    int operator()(const app::SymbolsCall& call) {
        coursetool::listSymbols(call.course, out, report);
        return verdict();
    }
    int operator()(const app::PrintCall& call) {
        if (const auto print = drawing<coursetool::PrintFunction>(coursetool::kPrintSymbol))
            print(argc, argv, call, report);
        return verdict();
    }
    int operator()(const app::SearchCall& call) {
        coursetool::searchPages(call, out, report);
        return verdict();
    }
    int operator()(const app::AnswerCall& call) {
        std::ios::sync_with_stdio(false);
        std::cin.tie(nullptr);
        const int status = exercises::runAnswer(call, std::cin, std::cout, std::cerr);
        return afterOutput(status);
    }
    int operator()(const app::ShowText& show) {
        out.text() = show.text;
        if (!out.flush())
            report.outputFailure(out.error());
        return verdict();
    }
    int operator()(const app::WrongCall& wrong) {
        print(stderr, "orvalente-cours : " + wrong.sentence +
                          " ; « orvalente-cours --help » montre les sous-commandes.\n");
        return wrong.status;
    }

    /// A function of the module that draws; a fault, and null, when it is not to be had.
    template <class Function>
    Function drawing(const char* symbol) {
        const auto found = platform::loadModuleFunction(ORVALENTE_DRAWING_MODULE, symbol);
        if (!found.address)
            report.fault({ORVALENTE_DRAWING_MODULE},
                         "cette partie du programme manque, à réinstaller : " + found.reason);
        return reinterpret_cast<Function>(found.address);
    }

    /// The compiler of Markdown, made when it is first needed; null, and a fault, without it.
    const authoring::Compiler* compiler() {
        if (!markdown)
            if (const auto make =
                    drawing<coursetool::MarkdownFunction>(coursetool::kMarkdownSymbol))
                markdown.reset(make(argc, argv));
        return markdown.get();
    }

    /// `result`, unless it could not be written.
    int afterOutput(int result) {
        if (std::cout.flush())
            return result;
        report.outputFailure(files::lastError());
        return verdict();
    }

    static int status(ExitCode code) { return static_cast<int>(code); }
    int verdict() const {
        return status(report.hasFailures() ? ExitCode::NotWritten
                      : report.hasFaults() ? ExitCode::Faults
                                           : ExitCode::Fine);
    }
};

} // namespace

int main(int argc, char** argv) {
    Perform perform{argc, argv, {}};
    const int status = std::visit(perform, app::readCoursCommandLine(argc, argv));
    for (const std::string& line : perform.report.lines())
        print(stderr, line + '\n');
    return status;
}
