#include "app/drawing_environment.h"
#include "authoring/markdown_compiler.h"
#include "check/check.h"
#include "coursetool/drawing_request.h"
#include "coursetool/markdown_source.h"
#include "coursetool/page_source.h"
#include "coursetool/print.h"
#include "coursetool/render.h"
#include "coursetool/tool_pictures.h"
#include "coursetool/trace.h"
#include "look/field_pictures.h"

namespace {

/// Where pictures lie: in the course, or where a source that stands alone has them.
std::filesystem::path pictureFolder(const std::filesystem::path& course,
                                    const std::filesystem::path& source) {
    return source.empty() ? course : coursetool::picturesOf(source);
}

/// The compiler, and what measuring text needs around it.
struct CompilerWithFonts : authoring::Compiler {
    CompilerWithFonts(int& argc, char** argv)
        : environment(argc, argv), compiler(environment.fonts) {}

    authoring::CompiledPage page(std::string_view markdown, int firstLine,
                                 std::string_view title) const override {
        return compiler.page(markdown, firstLine, title);
    }
    authoring::CompiledQuestion question(std::string_view markdown, int firstLine,
                                         std::optional<int> askedType) const override {
        return compiler.question(markdown, firstLine, askedType);
    }

    app::DrawingEnvironment environment;
    authoring::MarkdownCompiler compiler;
};

} // namespace

extern "C" Q_DECL_EXPORT authoring::Compiler* orvalenteMarkdown(int& argc, char** argv) {
    return new CompilerWithFonts(argc, argv);
}

extern "C" Q_DECL_EXPORT void orvalenteTrace(int& argc, char** argv,
                                             const coursetool::TraceRequest& request,
                                             coursetool::OutputBuffer& out,
                                             coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(pictureFolder(request.course, request.source), request.drives,
                                      report);
    coursetool::trace(request, environment.fonts, pictures, out, report);
}

extern "C" Q_DECL_EXPORT void orvalenteRender(int& argc, char** argv,
                                              const coursetool::RenderRequest& request,
                                              coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(pictureFolder(request.course, request.source), request.drives,
                                      report);
    coursetool::render(request, environment.fonts, pictures, look::fieldPictures(), report);
}

extern "C" Q_DECL_EXPORT void orvalentePrint(int& argc, char** argv,
                                             const coursetool::PrintRequest& request,
                                             coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(request.course, request.drives, report);
    coursetool::print(request, environment.fonts, pictures, report);
}

extern "C" Q_DECL_EXPORT coursetool::ExitCode orvalenteCheck(int& argc, char** argv,
                                                             const check::CheckRequest& request,
                                                             coursetool::OutputBuffer& out,
                                                             coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    return check::check(request, environment.fonts, out, report);
}

extern "C" Q_DECL_EXPORT void orvalenteBuildWarnings(int& argc, char** argv,
                                                     const std::filesystem::path& source,
                                                     coursetool::SourceReader& reader,
                                                     coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    check::warnOfWrongPages(source, reader, environment.fonts, report);
}
