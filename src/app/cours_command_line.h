#pragma once

#include "calculator/calc_command.h"
#include "coursetool/drawing_request.h"
#include "coursetool/exit_code.h"
#include "coursetool/print_request.h"
#include "coursetool/search.h"
#include "exercises/answer_command.h"

#include <filesystem>
#include <string>
#include <variant>

namespace app {

// What `orvalente-cours` was asked to do.

struct BuildCall {
    std::filesystem::path source;
    std::filesystem::path output;
};
/// What a page or question in Markdown compiles to.
struct ConvertCall {
    std::filesystem::path file;
};
struct ExtractCall {
    std::filesystem::path course;
    std::filesystem::path output;
};
struct DumpCall {
    std::filesystem::path file;
    std::string table; ///< empty: the tables and their columns
};
using TraceCall = coursetool::TraceRequest;
using RenderCall = coursetool::RenderRequest;
using CalcCall = calculator::CalcOptions;
using PrintCall = coursetool::PrintRequest;
using SearchCall = coursetool::SearchRequest;
using AnswerCall = exercises::AnswerOptions;
struct SymbolsCall {
    std::filesystem::path course; ///< empty: the symbols of the program alone
};
/// Help or version, for standard output.
struct ShowText {
    std::string text;
};
/// The call makes no sense; the sentence says why.
struct WrongCall {
    std::string sentence;
    int status = static_cast<int>(coursetool::ExitCode::WrongCall);
};

using CoursCall =
    std::variant<BuildCall, ConvertCall, ExtractCall, DumpCall, TraceCall, RenderCall, SymbolsCall,
                 PrintCall, SearchCall, CalcCall, AnswerCall, ShowText, WrongCall>;

/// Reads the command line. Directories and files that must be there are; an output directory of
/// `extract` is empty or not there yet.
CoursCall readCoursCommandLine(int argc, char** argv);

} // namespace app
