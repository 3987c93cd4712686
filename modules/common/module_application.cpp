#include "common/module_application.h"

#include "look/dress.h"
#include "look/program_icon.h"

#include <QLocale>

namespace common {

ModuleApplication::ModuleApplication(int& argc, char** argv, const platform::X11First&)
    : QApplication(argc, argv) {
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    look::dressApplication();
    setWindowIcon(look::programIcon());
}

} // namespace common
