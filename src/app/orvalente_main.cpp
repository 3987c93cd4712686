#include "app/command_line.h"
#include "app/shell_application.h"
#include "authoring/markdown_compiler.h"
#include "files/cause.h"
#include "files/passing_folder.h"
#include "look/dress.h"
#include "look/held_keys.h"
#include "look/scale.h"
#include "page/faces/font_book.h"
#include "platform/terminal.h"
#include "platform/x11_first.h"
#include "preview/previewed_course.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <optional>

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

/// What the course tool ends with, too, when it cannot write.
constexpr int kNotWritten = 74;

/// A course that is being written, with what it is compiled by.
class WrittenCourse {
public:
    WrittenCourse(const QString& sources, const std::filesystem::path& installation)
        : course_(sources.toStdU16String(), installation, compiler_) {
        if (course_.update() == preview::PreviewedCourse::Renewed::Nothing)
            course_.showInstead("# Ce cours a des fautes\n\nElles sont dites au pied de la page. "
                                "Le cours s'ouvrira dès qu'elles seront corrigées.\n");
    }

    preview::PreviewedCourse& course() { return course_; }

private:
    page::FontBook fonts_;
    authoring::MarkdownCompiler compiler_{fonts_};
    preview::PreviewedCourse course_;
};

} // namespace

int main(int argc, char** argv) {
    app::CommandLine line = app::readCommandLine(argumentsOf(argc, argv));
    if (line.message) {
        std::fputs(qUtf8Printable(*line.message), line.isError ? stderr : stdout);
        std::fputs(line.isError ? "\n" : "", stderr);
        return line.isError ? 2 : 0;
    }
    std::optional<platform::X11First> x11First(std::in_place);
    const double scale = chooseScale(line, argc, argv);
    if (scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));

    QApplication application(argc, argv);
    x11First.reset();
    look::dressApplication();
    const look::HeldKeys heldKeys;
    QApplication::setApplicationName(QStringLiteral("orvalente"));
    // The leaving question ends the program, not the closing of some window.
    QApplication::setQuitOnLastWindowClosed(false);

    std::optional<files::PassingFolder> compiled;
    std::optional<WrittenCourse> written;
    if (line.preview) {
        std::error_code error;
        compiled.emplace(error);
        if (error) {
            platform::tellOnTerminal(
                QStringLiteral(
                    "il n’y a pas de place pour l’aperçu dans le dossier temporaire : ") +
                QString::fromStdString(files::causeOf(error)));
            return kNotWritten;
        }
        written.emplace(*line.preview, compiled->path());
        line.course = QString::fromStdU16String(compiled->path().u16string());
    }
    app::ShellApplication shell(line, scale);
    if (!shell.start())
        return 0;
    if (written)
        shell.follow(written->course());
    QTimer::singleShot(0, &application, &warnOfMissingFaces); // the page comes first
    return QApplication::exec();
}
