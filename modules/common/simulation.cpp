#include "common/simulation.h"

#include "common/module_application.h"
#include "common/module_run.h"
#include "platform/file_names.h"

#include <QDir>

#include <utility>

namespace common {

namespace {

/// Characters of a file's name in a message; a damaged record can hold 126 without a blank, which
/// would make the window as wide.
constexpr qsizetype kMostOfName = 40;

} // namespace

QString notOpened(const QString& exercise, const QString& why) {
    const QString name =
        exercise.size() > kMostOfName ? exercise.left(kMostOfName) + QStringLiteral("…") : exercise;
    return QStringLiteral("L’exercice «\u00A0%1\u00A0» n’a pas pu être ouvert\u00A0: "
                          "%2 La simulation est à vous.")
        .arg(name, why);
}

Simulation::Simulation(SimulationKind kind, const StatusRecord& record, QString directory)
    : kind_(std::move(kind)), record_(record), directory_(std::move(directory)) {
    asked_ = record_.exercise();
    open(asked_);
}

void Simulation::open(const QString& exercise) {
    Asked asked;
    asked.exercise = exercise;
    if (!exercise.isEmpty())
        asked.path = platform::findWithoutCase(directory_, exercise).value_or(QString());
    asked.opening.edition = record_.edition();
    if (const QString next = exerciseAfter(exercise); !next.isEmpty())
        asked.opening.next = [this, next] {
            // Later: the button that asks for it goes with its window.
            QMetaObject::invokeMethod(
                qApp, [this, next] { open(next); }, Qt::QueuedConnection);
        };
    auto fresh = kind_.makeWindow(asked);
    if (window_)
        fresh->move(window_->pos());
    fresh->show();
    fresh->raise();
    fresh->activateWindow();
    // Only now: the program ends with its last window.
    window_ = std::move(fresh);
}

/// The file after `exercise` among those beside it, in the order of their names; empty when it is
/// the last, or is not there.
QString Simulation::exerciseAfter(const QString& exercise) const {
    const QStringList all =
        QDir(directory_)
            .entryList({u'*' + kind_.ending}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (qsizetype i = 0; i + 1 < all.size(); ++i)
        if (all[i].compare(exercise, Qt::CaseInsensitive) == 0)
            return all[i + 1];
    return {};
}

void Simulation::lookForExercise() {
    const QString exercise = record_.exercise();
    // The record is shared by all modules.
    if (exercise == asked_ || !exercise.endsWith(kind_.ending, Qt::CaseInsensitive))
        return;
    asked_ = exercise;
    open(exercise);
}

int runSimulation(int argc, char** argv, const SimulationKind& kind) {
    const ModuleApplication application(argc, argv);
    const ModuleRun run(kind.module);
    Simulation simulation(kind, run.record(), ModuleRun::directory());
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &application,
                     [&simulation](Qt::ApplicationState state) {
                         // Later: a window is not replaced while it is told that it has come.
                         if (state == Qt::ApplicationActive)
                             QMetaObject::invokeMethod(
                                 qApp, [&simulation] { simulation.lookForExercise(); },
                                 Qt::QueuedConnection);
                     });
    return QApplication::exec();
}

} // namespace common
