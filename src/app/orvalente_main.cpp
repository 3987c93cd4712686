#include "app/command_line.h"
#include "app/shell_application.h"
#include "look/held_keys.h"
#include "look/scale.h"
#include "page/faces/font_book.h"
#include "platform/terminal.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <cstdio>

namespace {

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

/// Size of the screen in its own pixels. Qt must be enlarged before the application object exists,
/// so that an object of its own looks at the screen first.
QSizeF screenPixels(int argc, char** argv) {
    const QGuiApplication probe(argc, argv);
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? QSizeF(screen->size()) * screen->devicePixelRatio() : QSizeF();
}

double chooseScale(const app::CommandLine& line, int argc, char** argv) {
    if (!line.scaleAuto && line.scale == 1)
        return 1; // the usual case looks at no screen
    const QSizeF screen = screenPixels(argc, argv);
    if (line.scaleAuto)
        return look::automaticScale(screen.width(), screen.height());
    const double scale = look::fittingScale(line.scale, screen.width(), screen.height());
    if (scale < line.scale)
        platform::tellOnTerminal(
            QStringLiteral("l’échelle %1 ne tient pas sur l’écran ; %2 à la place.")
                .arg(line.scale)
                .arg(scale));
    return scale;
}

/// Pages were laid out for these faces: without their stand-ins, lines run past the margins and
/// signs are missing.
void warnOfMissingFaces() {
    const QStringList missing = page::FontBook::missingFamilies();
    if (!missing.isEmpty())
        platform::tellOnTerminal(QStringLiteral("polices absentes, les pages en souffriront : %1.")
                                     .arg(missing.join(QStringLiteral(", "))));
}

} // namespace

int main(int argc, char** argv) {
    const app::CommandLine line = app::readCommandLine(argumentsOf(argc, argv));
    if (line.message) {
        std::fputs(qUtf8Printable(*line.message), line.isError ? stderr : stdout);
        std::fputs(line.isError ? "\n" : "", stderr);
        return line.isError ? 2 : 0;
    }
    const double scale = chooseScale(line, argc, argv);
    if (scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));

    QApplication application(argc, argv);
    const look::HeldKeys heldKeys;
    QApplication::setApplicationName(QStringLiteral("orvalente"));
    // The leaving question ends the program, not the closing of some window.
    QApplication::setQuitOnLastWindowClosed(false);

    app::ShellApplication shell(line, scale);
    if (!shell.start())
        return 0;
    QTimer::singleShot(0, &application, &warnOfMissingFaces); // the page comes first
    return QApplication::exec();
}
