#pragma once

#include "page/faces/font_book.h"

#include <QGuiApplication>

#include <memory>

namespace app {

/// What drawing needs around it, without a display. A subcommand that compiles and then draws has
/// two of them, one after the other or one within the other, and there is one application object.
struct DrawingEnvironment {
    DrawingEnvironment(int& argc, char** argv);

    std::unique_ptr<QGuiApplication> application; ///< null in the inner one
    page::FontBook fonts;
};

} // namespace app
