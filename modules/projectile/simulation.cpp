#include "projectile/simulation.h"

#include "platform/file_names.h"

#include <utility>

namespace projectile {

namespace {

/// Files of this module's exercises end so; the record is shared by all modules.
const QString kEnding = QStringLiteral(".E21");

/// Characters of a file's name in a message; a damaged record can hold 126 without a blank, which
/// would make the window as wide.
constexpr qsizetype kMostOfName = 40;

Opening openingOf(const QString& directory, const QString& name, const QString& edition) {
    Opening opening;
    opening.edition = edition;
    if (name.isEmpty())
        return opening;
    QString why;
    opening.exercise =
        readExercise(platform::findWithoutCase(directory, name).value_or(QString()), why);
    if (!opening.exercise)
        opening.notice =
            QStringLiteral("L’exercice «\u00A0%1\u00A0» n’a pas pu être ouvert\u00A0: "
                           "%2 La simulation est à vous.")
                .arg(name.size() > kMostOfName ? name.left(kMostOfName) + QStringLiteral("…")
                                               : name,
                     why);
    return opening;
}

} // namespace

Simulation::Simulation(const common::StatusRecord& record, QString directory)
    : record_(record), directory_(std::move(directory)) {
    open(record_.exercise());
}

void Simulation::open(const QString& exercise) {
    opened_ = exercise;
    auto fresh = std::make_unique<MainWindow>(openingOf(directory_, exercise, record_.edition()));
    if (window_)
        fresh->move(window_->pos());
    fresh->show();
    fresh->raise();
    fresh->activateWindow();
    // Only now: the program ends with its last window.
    window_ = std::move(fresh);
}

void Simulation::lookForExercise() {
    const QString exercise = record_.exercise();
    if (exercise != opened_ && exercise.endsWith(kEnding, Qt::CaseInsensitive))
        open(exercise);
}

} // namespace projectile
