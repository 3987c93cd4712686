#include "common/module_application.h"
#include "common/module_run.h"
#include "platform/file_names.h"
#include "projectile/main_window.h"

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
    const QString directory = common::ModuleRun::directory();
    opening.exercise = projectile::readExercise(
        platform::findWithoutCase(directory, name).value_or(QString()), why);
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
    const common::ModuleApplication application(argc, argv);
    const common::ModuleRun run(kModule);
    projectile::MainWindow window(openingOf(run.record()));
    window.show();
    return QApplication::exec();
}
