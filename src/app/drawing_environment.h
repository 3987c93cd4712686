#pragma once

#include "page/faces/font_book.h"

#include <QGuiApplication>

#include <optional>

namespace app {

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

} // namespace app
