#pragma once

#include "common/exercise_file.h"
#include "common/qt_text.h"
#include "common/task.h"
#include "support/files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

/// The least that an exercise is.
inline constexpr const char* kLeastTask =
    "titre=T\nenonce=E\nquestion=Q\nreponse=2,5\ntolerance=0,1\n";

/// "Exercice 03.E21" for "03.E21" of a module's folder of exercises.
template <class Exercise>
Exercise shipped(const char* folder, const QString& end,
                 std::optional<Exercise> (*parse)(std::u16string_view, std::u16string&)) {
    QString why;
    const auto found = common::readExercise(
        QStringLiteral("%1/Exercice %2").arg(QString::fromUtf8(folder), end), why, parse);
    EXPECT_TRUE(found) << qPrintable(end + ' ' + why);
    return found.value_or(Exercise());
}

/// That what the module itself finds is right, that something else is not, and that both are
/// explained.
inline void expectAnswered(const common::Task& task, double found) {
    const QString answer = QString::number(found, 'f', 3).replace('.', ',');
    EXPECT_EQ(task.judge(common::utf16(answer)), common::Answer::Right)
        << qPrintable(common::qtText(task.title) + ' ' + answer);
    EXPECT_EQ(task.judge(u"1"), common::Answer::Wrong);
    EXPECT_FALSE(task.whenRight.empty() || task.whenWrong.empty());
}

/// That each of these lines makes a file invalid that is right without it.
template <class Exercise>
void expectRefused(std::optional<Exercise> (*parse)(std::u16string_view, std::u16string&),
                   const std::vector<const char*>& lines) {
    const QTemporaryDir directory;
    const QString path = directory.filePath("Exercice.txt");
    QString why;
    EXPECT_FALSE(common::readExercise(path, why, parse));
    EXPECT_TRUE(why.contains("dossier")) << qPrintable(why);
    test_support::writeFile(path, kLeastTask);
    EXPECT_TRUE(common::readExercise(path, why, parse)) << qPrintable(why);
    for (const char* line : lines) {
        test_support::writeFile(path, QByteArray(kLeastTask) + line + '\n');
        why.clear();
        EXPECT_FALSE(common::readExercise(path, why, parse)) << line;
        EXPECT_FALSE(why.isEmpty()) << line;
    }
}
