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
#include "page/faces/font_book.h"

#include <QGuiApplication>

#include <optional>

namespace {

/// To be made before the application object.
struct NoDisplay {
    NoDisplay() {
        // What Qt remarks about the system it runs on is no fault of a course.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        // Fonts need an application object, but no display.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
};

/// What drawing needs around it. A subcommand that compiles and then draws has two of them, one
/// after the other or one within the other, and there is one application object.
struct DrawingEnvironment {
    DrawingEnvironment(int& argc, char** argv) {
        if (!QCoreApplication::instance())
            application.emplace(argc, argv);
    }

    NoDisplay noDisplay;
    std::optional<QGuiApplication> application;
    page::FontBook fonts;
};

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

    DrawingEnvironment environment;
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
    const DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(pictureFolder(request.course, request.source), request.drives,
                                      report);
    coursetool::trace(request, environment.fonts, pictures, out, report);
}

extern "C" Q_DECL_EXPORT void orvalenteRender(int& argc, char** argv,
                                              const coursetool::RenderRequest& request,
                                              coursetool::Report& report) {
    const DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(pictureFolder(request.course, request.source), request.drives,
                                      report);
    coursetool::render(request, environment.fonts, pictures, look::fieldPictures(), report);
}

extern "C" Q_DECL_EXPORT void orvalentePrint(int& argc, char** argv,
                                             const coursetool::PrintRequest& request,
                                             coursetool::Report& report) {
    const DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(request.course, request.drives, report);
    coursetool::print(request, environment.fonts, pictures, report);
}

extern "C" Q_DECL_EXPORT coursetool::ExitCode orvalenteCheck(int& argc, char** argv,
                                                             const check::CheckRequest& request,
                                                             coursetool::OutputBuffer& out,
                                                             coursetool::Report& report) {
    const DrawingEnvironment environment(argc, argv);
    return check::check(request, environment.fonts, out, report);
}

extern "C" Q_DECL_EXPORT void orvalenteBuildWarnings(int& argc, char** argv,
                                                     const std::filesystem::path& source,
                                                     coursetool::SourceReader& reader,
                                                     coursetool::Report& report) {
    const DrawingEnvironment environment(argc, argv);
    check::warnOfWrongPages(source, reader, environment.fonts, report);
}
