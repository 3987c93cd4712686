#include "coursetool/drawing_request.h"
#include "coursetool/trace.h"
#include "platform/qt/font_book.h"

#include <QGuiApplication>

extern "C" Q_DECL_EXPORT void orvalenteTrace(int& argc, char** argv,
                                             const coursetool::TraceRequest& request,
                                             coursetool::OutputBuffer& out,
                                             coursetool::Report& report) {
    // What Qt remarks about the system it runs on is no fault of a course.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Fonts need an application object, but no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const platform::FontBook fonts;
    if (request.source.empty())
        coursetool::tracePage(request, fonts, out, report);
    else
        coursetool::traceSource(request, fonts, out, report);
}
