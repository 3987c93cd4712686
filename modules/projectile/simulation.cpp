#include "projectile/simulation.h"

#include "platform/file_names.h"

#include <QCoreApplication>
#include <QDir>

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

/// The file after `exercise` among those beside it, in the order of their names; empty when it is
/// the last, or is not there.
QString exerciseAfter(const QString& directory, const QString& exercise) {
    const QStringList all =
        QDir(directory).entryList({u'*' + kEnding}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (qsizetype i = 0; i + 1 < all.size(); ++i)
        if (all[i].compare(exercise, Qt::CaseInsensitive) == 0)
            return all[i + 1];
    return {};
}

} // namespace

Simulation::Simulation(const common::StatusRecord& record, QString directory)
    : record_(record), directory_(std::move(directory)) {
    asked_ = record_.exercise();
    open(asked_);
}

void Simulation::open(const QString& exercise) {
    Opening opening = openingOf(directory_, exercise, record_.edition());
    if (const QString next = exerciseAfter(directory_, exercise); !next.isEmpty())
        opening.next = [this, next] {
            // Later: the button that asks for it goes with its window.
            QMetaObject::invokeMethod(
                qApp, [this, next] { open(next); }, Qt::QueuedConnection);
        };
    auto fresh = std::make_unique<MainWindow>(opening);
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
    if (exercise == asked_ || !exercise.endsWith(kEnding, Qt::CaseInsensitive))
        return;
    asked_ = exercise;
    open(exercise);
}

} // namespace projectile
