#include "app/shell_application.h"

#include "app/course_data.h"
#include "app/installation_window.h"
#include "app/order_window.h"
#include "app/pdf_loader.h"
#include "app/preview.h"
#include "app/video_loader.h"
#include "app/voice_loader.h"
#include "calculator/machine_opener.h"
#include "coursedata/course_directory.h"
#include "coursedata/course_pictures.h"
#include "coursedata/data_location.h"
#include "exercises/exo_opener.h"
#include "help/help_opener.h"
#include "look/message_dialog.h"
#include "look/print_preview.h"
#include "look/print_setup.h"
#include "look/reduced_light.h"
#include "look/zoom.h"
#include "output/paper/escape_watch.h"
#include "output/paper/qt_printer.h"
#include "page/faces/font_book.h"
#include "platform/qt/mounted_drives.h"
#include "platform/qt/patient_activator.h"
#include "platform/qt/qt_beeper.h"
#include "platform/qt/qt_processes.h"
#include "platform/qt/qt_screen.h"
#include "platform/qt/system_display_settings.h"
#include "platform/qt/system_help_viewer.h"
#include "platform/qt/system_pdf_opener.h"
#include "platform/system_program_windows.h"
#include "platform/unseen_windows.h"
#include "search/coordon_opener.h"
#include "shell/alerte.h"
#include "shell/closing.h"
#include "shell/fermeur.h"
#include "shell/launcher.h"
#include "shell/start_up.h"
#include "viewer/action_dispatcher.h"
#include "viewer/link_controls.h"
#include "viewer/main_commands.h"
#include "viewer/multim.h"
#include "viewer/page_video.h"
#include "viewer/print_command.h"

#ifdef ORVALENTE_X11
#include "platform/x11/x11_windows.h"
#endif

#include <QApplication>

namespace app {

namespace {

/// Where the demonstration course stands beside an installed program.
QString demonstrationCourse() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/orvalente/course");
}

QString courseDirectory(const CommandLine& commandLine) {
    return coursedata::chooseCourseDirectory(
        {commandLine.course, QCoreApplication::applicationDirPath(), demonstrationCourse()});
}

#ifdef ORVALENTE_X11
using OtherWindows = platform::X11Windows;
#else
/// Other programs' windows are out of reach; they come to the front by themselves when they start.
class OtherWindows : public platform::WindowActivator {
public:
    bool activate(qint64, const QString&) override { return false; }
};
#endif

class LaunchedModules : public viewer::ModuleStarter, public viewer::UpdateCheck {
public:
    explicit LaunchedModules(shell::Launcher& launcher) : launcher_(launcher) {}

    void launchModule(std::int16_t code) override { launcher_.launchModule(code); }
    bool confirmUpdateIsPossible() override { return launcher_.confirmUpdateIsPossible(); }

private:
    shell::Launcher& launcher_;
};

/// The calculator; its memory lives as long as the program.
class Calculator : public viewer::ModalWindow, public exercises::CalculatorBeside {
public:
    void open() override { opener_.open(); }
    void openAfresh(const std::function<QPoint(QSize)>& placeFor) override {
        opener_.openAfresh(placeFor);
    }
    void raise() override { opener_.raise(); }

private:
    calculator::Memory memory_;
    calculator::MachineOpener opener_{memory_};
};

/// The help, beside all other windows.
class Help : public viewer::ModalWindow {
public:
    Help(const shell::SharedState& state, platform::HelpViewer& viewer,
         const help::HelpPrinting& printing)
        : opener_(state.InstallDir, viewer, printing) {}

    void open() override { opener_.open(); }

private:
    help::HelpOpener opener_;
};

/// The exit screen, and the end of the program.
class ExitScreen : public viewer::ModalWindow {
public:
    ExitScreen(QWidget& window, shell::Closing& closing) : window_(window), closing_(closing) {}

    void open() override {
        fermeur_ = std::make_unique<shell::Fermeur>(&window_, [this] { closing_.run(); });
        fermeur_->run();
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    }

private:
    QWidget& window_;
    shell::Closing& closing_;
    std::unique_ptr<shell::Fermeur> fermeur_; ///< stays until the end
};

} // namespace

/// Everything there is, in the order in which one needs the other.
struct ShellApplication::Parts {
    Parts(const CommandLine& commandLine, double scale)
        : screen(scale), zoom(scale), window(state, fonts, screen),
          launcher(state, messageBoxes, processes, *activator, window), modules(launcher),
          links(window, fonts, window.shownPage().links),
          orderForm({printerSetup, printer, fonts}, messageBoxes, window),
          installation(state, processes, messageBoxes, window), search(state, fonts, window),
          drives(courseDirectory(commandLine), commandLine.drives),
          symbols(courseDirectory(commandLine)),
          exercise(window, {state, drawing, pictures, fonts, screen, messageBoxes, calculator,
                            reading, commandLine.author}),
          pages(state, record, window, tools, window.shownPage(), video),
          actions(state, pages, window, modules, exercise, orderForm),
          collaborators{video,  links,      printing, modules,      exercise,   orderForm,
                        search, calculator, help,     installation, exitScreen, reading},
          commands(state, actions, window, collaborators, messageBoxes),
          course(record, [this](const QString& file,
                                const QString& reason) { window.tellUnreadable(file, reason); }),
          startUp(state, courseDirectory(commandLine),
                  {screen, messageBoxes, window, course, warning}) {
        zoom.setWindow(window, {[this](double now) { screen.setScale(now); },
                                [this] { return window.ownPlace(); }});
        window.attach({commands, actions, pages, collaborators, zoom,
                       [this] { return startUp.run() == shell::StartUp::Outcome::GoOn; }});
    }

    /// What brings the windows of modules to the front on the desktop that there is.
    std::unique_ptr<platform::WindowActivator> moduleActivator() {
        const QString desktop = QGuiApplication::platformName();
        if (desktop.startsWith(QStringLiteral("wayland")))
            return std::make_unique<platform::UnseenWindows>(
                otherWindows,
                [this](const QString& program) { launcher.reportLeftBehind(program); });
        // Where the desktop is of yet another kind than X11, X11 does not know of all windows:
        // nothing can then be said about one that it does not find.
        platform::PatientActivator::GivenUp notFound;
        if (desktop == QStringLiteral("xcb"))
            notFound = [this](const QString& program) { launcher.reportHidden(program); };
        return std::make_unique<platform::PatientActivator>(otherWindows, std::move(notFound));
    }

    shell::SharedState state;
    markup::DrawingState drawing;
    coursedata::BoundRecord record;
    page::FontBook fonts;
    platform::QtScreen screen;
    look::Zoom zoom;
    look::ReducedLight reducedLight;
    look::DialogMessageBoxes messageBoxes;
    platform::QtProcesses processes;
    OtherWindows otherWindows;
    std::unique_ptr<platform::WindowActivator> activator = moduleActivator();

    viewer::Multim window;
    shell::Launcher launcher;
    LaunchedModules modules;
    viewer::LinkControls links;
    OrderWindow orderForm;
    InstallationWindow installation;
    search::CoordonOpener search;
    Calculator calculator;
    viewer::ReadingAloud reading{&loadVoice};
    std::unique_ptr<platform::ProgramWindows> programs = platform::systemProgramWindows();
    shell::Closing closing{state, launcher, *programs, processes};
    ExitScreen exitScreen{window, closing};

    platform::MountedDrives drives;
    platform::QtBeeper beeper;
    coursedata::DataLocation location{state, drives, messageBoxes, beeper};
    viewer::PageVideo video{state, window.shownPage(), location, window, &loadVideoDevice};
    coursedata::ImageList symbols;
    coursedata::CoursePictures pictures{location, symbols};
    exercises::ExoOpener exercise;
    markup::DrawingTools tools{drawing, pictures, fonts, &window};
    viewer::PageLoader pages;
    output::QtPrinter printer{fonts, &loadPdfPrinter};
    look::QtPrinterSetup printerSetup{printer, messageBoxes};
    look::QtPrintPreview printPreview{printer, fonts};
    platform::SystemPdfOpener pdfOpener;
    platform::SystemHelpViewer helpViewer{otherWindows};
    Help help{
        state, helpViewer, {printerSetup, printPreview, printer, fonts, messageBoxes, pdfOpener}};
    output::EscapeWatch escape{window};
    viewer::PagePrinter pagePrinter{
        {state, record, tools, printer, [this] { return escape.isAsked(); }}};
    viewer::PrintCommand printing{
        {printerSetup, printPreview, pagePrinter, messageBoxes, window, pdfOpener}};
    viewer::ActionDispatcher actions;
    viewer::Collaborators collaborators;
    viewer::MainCommands commands;
    CourseData course;
    platform::SystemDisplaySettings displaySettings;
    shell::AlerteOpener warning{state, displaySettings};
    shell::StartUp startUp;
    CourseReload reload{{state, record, course, symbols, pages, window, exercise}};
    std::optional<Preview> preview;
};

ShellApplication::ShellApplication(const CommandLine& commandLine, double scale)
    : parts_(std::make_unique<Parts>(commandLine, scale)) {}

ShellApplication::~ShellApplication() = default;

void ShellApplication::follow(preview::PreviewedCourse& course) {
    parts_->preview.emplace(course, parts_->reload, parts_->window, parts_->record, parts_->fonts);
}

bool ShellApplication::start() {
    return parts_->window.Form_Load();
}

} // namespace app
