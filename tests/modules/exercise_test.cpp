#include "modules/shipped_exercises.h"
#include "projectile/exercise.h"
#include "projectile/flight.h"

#include <QTemporaryDir>

#include <cmath>

using namespace projectile;
using common::Answer;

namespace {

Exercise shipped(const QString& number) {
    return ::shipped(PROJECTILE_EXERCISES, number + ".E21", parseExercise);
}

/// What the simulation itself answers to the question of an exercise.
double simulated(const QString& number) {
    Launch launch = shipped(number).launch;
    if (number == "03")
        return Flight(launch).duration();
    if (number == "06") {
        const double earth = Flight(launch).range();
        launch.gravity = kWorlds[1].gravity;
        return Flight(launch).range() / earth;
    }
    double best = 0;
    double found = 0;
    const bool angle = number == "04";
    for (double tried = 1; tried <= 80; tried += 0.01) {
        (angle ? launch.angle : launch.speed) = tried;
        const Flight flight(launch);
        // The longest throw, or the one that comes down nearest to the ring.
        const Landmark ring = angle ? Landmark() : shipped(number).landmarks.front();
        const double score = angle
                                 ? flight.range()
                                 : 1 / std::fabs(flight.at(ring.x / flight.start().vx).y - ring.y);
        if (score > best) {
            best = score;
            found = tried;
        }
    }
    return found;
}

} // namespace

TEST(Exercises, theShippedOnesAreAnsweredByTheSimulation) {
    for (const QString number : {"03", "04", "05", "06"}) {
        const Exercise exercise = shipped(number);
        expectAnswered(exercise, simulated(number));
        EXPECT_FALSE(exercise.locked.empty());
    }
    EXPECT_TRUE(shipped("03").hidesResults);
    EXPECT_FALSE(shipped("03").isLocked(Parameter::Speed));
}

TEST(Exercises, readNumbersAsTheyAreTyped) {
    std::u16string why;
    const Exercise exercise =
        parseExercise(common::utf16(QString::fromUtf8(kLeastTask) + "unite=m/s"), why)
            .value_or(Exercise());
    const auto judge = [&](const char* typed) {
        return exercise.judge(QString::fromUtf8(typed).toStdU16String());
    };
    for (const char* right : {"2,5", "2.5", " 2,40 ", "2,6", "2,5 m/s", "2,5m/s", "25e-1"})
        EXPECT_EQ(judge(right), Answer::Right) << right;
    for (const char* wrong : {"2,39", "-2,5", "\u22122,5", "2,5e300"})
        EXPECT_EQ(judge(wrong), Answer::Wrong) << wrong;
    for (const char* none :
         {"", "deux", "2,5 kg", "m/s 2,5", "2 m/s 5", "2,5 m/s m/s", "2,5,1", "nan", "inf", "m/s"})
        EXPECT_EQ(judge(none), Answer::NoNumber) << none;
}

TEST(Exercises, damagedFilesAreRefusedWithAReason) {
    const QTemporaryDir directory;
    const QString path = directory.filePath("Exercice 03.E21");
    QString why;
    const auto readExercise = [](const QString& file, QString& reason) {
        return common::readExercise(file, reason, parseExercise);
    };
    EXPECT_FALSE(readExercise(path, why));
    EXPECT_TRUE(why.contains("dossier")) << qPrintable(why);
    const QByteArray least = kLeastTask;
    test_support::writeFile(path, "\xEF\xBB\xBF" + QByteArray(least).replace("\n", "\r\n"));
    EXPECT_TRUE(readExercise(path, why)) << qPrintable(why);
    for (const QByteArray& bad :
         {QByteArray(), QByteArray("\0\xFF\x1B", 3), QByteArray("titre=T\n"),
          least + "sans signe\n", least + "=x\n", least + "vitesse=61\n", least + "vitesse=vite\n",
          least + "astre=Pluton\n", least + "verrou=tout\n", least + "repere=1\n",
          least + "repere=1 1e9 loin\n", least + "frottements=un peu\n", least + "inconnu=1\n",
          least + "tolerance=-1\n", least + QByteArray("repere=1 1 x\n").repeated(9),
          least + QByteArray("# long\n").repeated(20'000)}) {
        test_support::writeFile(path, bad);
        why.clear();
        EXPECT_FALSE(readExercise(path, why)) << bad.right(40).constData();
        EXPECT_FALSE(why.isEmpty());
    }
    EXPECT_FALSE(readExercise(directory.path(), why));
}
