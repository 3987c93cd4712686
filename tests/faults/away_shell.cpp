// The shell on a course whose share goes away and comes back: away_shell COURSE FILE, with
// share_away preloaded; the share is away while FILE is there. Tells, a line each, what window
// titles and words there are: at first, while it is away, and afterwards.

#include "app/shell_application.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>

namespace {

QWidget* mainWindow() {
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName() == QStringLiteral("multim"))
            return each;
    return nullptr;
}

/// The words of labels that are seen, a line each.
void tellLabels(const QWidget& window, const char* what) {
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty())
            std::printf("%s %s\n", what, qUtf8Printable(label->text()));
}

/// In the window of the search, what is on one page only.
void search(const QDialog& window) {
    window.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("prisme"));
    window.findChild<QAbstractButton*>(QStringLiteral("Command2"))->click();
    const auto* const bar = window.findChild<QWidget*>(QStringLiteral("Pbar1"));
    while (!bar->isHidden())
        QCoreApplication::processEvents();
    tellLabels(window, "search");
}

/// Windows that wait for an answer are told of and closed.
void closeDialogs() {
    const auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog)
        return;
    if (dialog->objectName() == QStringLiteral("coordon"))
        search(*dialog);
    else
        tellLabels(*dialog, "dialog");
    QApplication::activeModalWidget()->close();
}

/// What a screen reader would find in the main window, its title, and what it says in a line.
void tell(const char* what) {
    std::printf("%s: %s\n", what, qUtf8Printable(mainWindow()->windowTitle().simplified()));
    for (const QWidget* each : mainWindow()->findChildren<QWidget*>())
        if (each->isVisible() && !each->accessibleDescription().isEmpty() &&
            !qobject_cast<const QAbstractButton*>(each))
            std::printf("  %s\n", qUtf8Printable(each->accessibleDescription()));
    const auto* const line = mainWindow()->findChild<QLabel*>(QStringLiteral("outcome"));
    if (line->isVisible())
        std::printf("  says %s\n", qUtf8Printable(line->text()));
}

void press(const char* name) {
    if (auto* button = mainWindow()->findChild<QAbstractButton*>(QString::fromLatin1(name)))
        button->click();
    QCoreApplication::processEvents();
    tell(name);
}

void useEverything() {
    press("command6"); // another page
    press("command5"); // and one more
    press("command4"); // the search
    press("Command2"); // home
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QTimer dialogs;
    QObject::connect(&dialogs, &QTimer::timeout, &closeDialogs);
    dialogs.start(50);
    app::CommandLine line;
    line.course = QString::fromLocal8Bit(argv[1]);
    app::ShellApplication shell(line, 1);
    if (!shell.start())
        return 1;
    tell("before");
    QFile away(QString::fromLocal8Bit(argv[2]));
    if (!away.open(QIODevice::WriteOnly))
        return 1;
    std::printf("away\n");
    useEverything();
    away.remove();
    std::printf("back\n");
    useEverything();
    return 0;
}
