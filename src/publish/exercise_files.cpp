#include "publish/exercise_files.h"

#include "platform/file_names.h"
#include "shell/launcher.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

namespace publish {

namespace {

/// Launch codes are ten times a module's number, with an exercise in the last digit; modules have
/// numbers up to 30.
constexpr std::int16_t kFirstCode = 10;
constexpr std::int16_t kLastCode = 309;

/// Longer ones are no exercises (modules/common/entry_file.h); bytes.
constexpr qint64 kLargestExercise = 64 * 1024;

QJsonArray filesEndingIn(const QString& course, const QString& ending) {
    QJsonArray files;
    for (const QString& name :
         QDir(course).entryList({u'*' + ending}, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        // Looked up as the programs do: a link that leads elsewhere is no file of the course.
        const auto path = platform::findWithoutCase(course, name);
        QFile file(path.value_or(QString()));
        if (!path || !file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = file.read(kLargestExercise + 1);
        if (text.size() <= kLargestExercise)
            files.append(QJsonObject{{QStringLiteral("nom"), name},
                                     {QStringLiteral("texte"), QString::fromUtf8(text)}});
    }
    return files;
}

} // namespace

std::map<int, QJsonObject> exercisesOfCourse(const QString& course) {
    std::map<int, QJsonObject> all;
    for (std::int16_t code = kFirstCode; code <= kLastCode; ++code) {
        const QString name = shell::exerciseOfCode(code);
        if (name.isEmpty())
            continue;
        QJsonObject& module = all[code / 10];
        if (module.isEmpty())
            module.insert(QStringLiteral("exercices"),
                          filesEndingIn(course, u'.' + QFileInfo(name).suffix()));
        QJsonObject codes = module.value(QStringLiteral("codes")).toObject();
        codes.insert(QString::number(code % 10), name);
        module.insert(QStringLiteral("codes"), codes);
    }
    return all;
}

} // namespace publish
