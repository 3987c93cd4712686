#include "app/drawing_environment.h"

namespace app {

namespace {

std::unique_ptr<QGuiApplication> makeApplication(int& argc, char** argv) {
    if (QCoreApplication::instance())
        return nullptr;
    // What Qt remarks about the system it runs on is no fault of a course.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Fonts need an application object, but no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

DrawingEnvironment::DrawingEnvironment(int& argc, char** argv)
    : application(makeApplication(argc, argv)) {}

} // namespace app
