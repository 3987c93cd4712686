#include "common/house.h"
#include "common/module_run.h"
#include "projectile/main_window.h"

#include <QApplication>
#include <QDir>

namespace {

constexpr int kModule = 23;

/// Characters of a file's name in a message; a damaged record can hold 126 without a blank, which
/// would make the window as wide.
constexpr qsizetype kMostOfName = 40;

projectile::Opening openingOf(const common::StatusRecord& record) {
    projectile::Opening opening;
    opening.edition = record.edition();
    const QString name = record.exercise();
    if (name.isEmpty())
        return opening;
    QString why;
    opening.exercise =
        projectile::readExercise(QDir(common::ModuleRun::directory()).filePath(name), why);
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

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    common::applyHouse(application);
    const common::ModuleRun run(kModule);
    projectile::MainWindow window(openingOf(run.record()));
    window.show();
    return QApplication::exec();
}
