#include "modules/shipped_exercises.h"
#include "reaction/experiment.h"

#include <gtest/gtest.h>

#include <map>

using namespace reaction;

namespace {

Mixture mixtureOf(const char* key, double first, double second) {
    return {reactionOf(QString::fromUtf8(key).toStdU16String()), {first, second}};
}

/// Atoms and charge of a formula such as "Cu(OH)₂" or "Zn²⁺"; the charge under "+".
std::map<QString, int> countOf(const char16_t* formula) {
    const QString text = QString::fromUtf16(formula);
    const QString below = QStringLiteral("₀₁₂₃₄₅₆₇₈₉");
    const QString above = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
    std::map<QString, int> all;
    std::map<QString, int> group; // in brackets, or one element
    bool inside = false;
    const auto close = [&](int times) {
        for (const auto& [element, count] : group)
            all[element] += count * times;
        group.clear();
    };
    int charge = 1;
    for (const QChar sign : text) {
        if (sign == u'(' || (sign.isUpper() && !inside))
            close(1);
        if (sign.isUpper())
            group[sign] = 1;
        else if (sign.isLower())
            group = {{QString(group.begin()->first) + sign, 1}};
        else if (below.contains(sign))
            close(static_cast<int>(below.indexOf(sign)));
        else if (above.contains(sign))
            charge = static_cast<int>(above.indexOf(sign));
        else if (sign == u'⁺' || sign == u'⁻')
            all["+"] += sign == u'⁺' ? charge : -charge;
        inside = sign == u'(' || (inside && sign != u')');
    }
    close(1);
    return all;
}

} // namespace

TEST(Reactions, keepAtomsAndCharge) {
    EXPECT_EQ(countOf(u"Cu(OH)₂"), (std::map<QString, int>{{"Cu", 1}, {"O", 2}, {"H", 2}}));
    EXPECT_EQ(countOf(u"Zn²⁺"), (std::map<QString, int>{{"Zn", 1}, {"+", 2}}));
    for (const Reaction& reaction : kReactions) {
        std::map<QString, int> balance;
        for (std::size_t i = 0; i < reaction.count; ++i) {
            for (const auto& [element, count] : countOf(reaction.all[i].formula))
                balance[element] += (i < kReactants ? 1 : -1) * count * reaction.all[i].coefficient;
        }
        for (const auto& [element, count] : balance)
            EXPECT_EQ(count, 0) << qPrintable(common::qtText(equation(reaction)) + ' ' + element);
        EXPECT_EQ(reactionOf(reaction.key), &reaction);
    }
    EXPECT_EQ(reactionOf(u"feu"), nullptr);
}

TEST(Reactions, areWrittenAsInTextbooks) {
    EXPECT_EQ(equation(kReactions[1]), u"C₃H₈(g) + 5\u00A0O₂(g) → 3\u00A0CO₂(g) + 4\u00A0H₂O(g)");
    EXPECT_EQ(equation(kReactions[2]), u"2\u00A0H₂(g) + O₂(g) → 2\u00A0H₂O(g)");
    EXPECT_EQ(formulaOf(u"C₃H₈"), u"\\text{C}_{3}\\text{H}_{8}");
    EXPECT_EQ(formulaOf(u"Zn²⁺"), u"\\text{Zn}^{2+}");
    EXPECT_EQ(formulaOf(u"HO⁻"), u"\\text{HO}^{−}");
    EXPECT_EQ(formulaOf(u"Al"), u"\\text{Al}");
}

TEST(Mixture, endsWhenTheLimitingReactantIsUsedUp) {
    const struct {
        const char* reaction;
        double first, second, maximum;
        Limiting limiting;
        std::array<double, 4> left;
    } rows[] = {
        {"méthane", 2, 3, 1.5, Limiting::Second, {0.5, 0, 1.5, 3}}, // the course's example
        {"méthane", 1, 3, 1, Limiting::First, {0, 1, 1, 2}},
        {"propane", 1.5, 6, 1.2, Limiting::Second, {0.3, 0, 3.6, 4.8}},
        {"aluminium", 2, 1.5, 0.5, Limiting::Both, {0, 0, 1, 0}},
        {"eau", 0.6, 0.3, 0.3, Limiting::Both, {0, 0, 0.6, 0}}, // 0.6 / 2 is not 0.3 to the bit
        {"zinc", 0, 1, 0, Limiting::Nothing, {0, 1, 0, 0}},
        {"cuivre", 0, 0, 0, Limiting::Nothing, {0, 0, 0, 0}},
    };
    for (const auto& row : rows) {
        const Mixture mixture = mixtureOf(row.reaction, row.first, row.second);
        EXPECT_NEAR(mixture.maximum(), row.maximum, 1e-12) << row.reaction;
        EXPECT_EQ(mixture.limiting(), row.limiting) << row.reaction;
        for (std::size_t i = 0; i < mixture.reaction->count; ++i) {
            EXPECT_NEAR(mixture.amount(i, mixture.maximum()), row.left[i], 1e-12) << row.reaction;
            EXPECT_EQ(mixture.amount(i, 0), i < kReactants ? mixture.initial[i] : 0);
            EXPECT_GE(mixture.amount(i, mixture.maximum() + 1), 0);
        }
    }
}

TEST(ReactionExperiment, runsFromTheStartToTheEndAndStartsOverWithAnotherMixture) {
    Experiment experiment;
    EXPECT_EQ(experiment.progress(), 0);
    const double duration = experiment.player().playback().duration();
    experiment.player().play([&](common::Playback& playback) { playback.seek(duration / 2); });
    EXPECT_NEAR(experiment.progress(), 0.75, 1e-12);
    EXPECT_NEAR(experiment.amountNow(1), 1.5, 1e-12);
    experiment.player().play([](common::Playback& playback) { playback.seek(1000); });
    EXPECT_EQ(experiment.progress(), 1.5);
    EXPECT_EQ(experiment.amountNow(1), 0);
    experiment.setInitial(0, 1);
    EXPECT_EQ(experiment.progress(), 0);
    experiment.setInitial(0, -1); // held at nothing
    EXPECT_FALSE(experiment.player().playback().duration() > 0);
    EXPECT_EQ(experiment.progress(), 0);
    EXPECT_EQ(describe(experiment.mixture()), u"Il manque un réactif\u00A0: rien ne réagit.");
    experiment.setInitial(0, 100);
    EXPECT_EQ(experiment.mixture().initial[0], 6);
}

TEST(ReactionExperiment, changesOneAmountSoThatNothingRemains) {
    const struct {
        double first, second;
        std::array<double, 2> balanced;
    } rows[] = {{2, 3, {2, 4}}, {1, 0, {1, 2}}, {6, 4, {2, 4}}, {0, 5, {2.5, 5}}};
    for (const auto& row : rows) {
        Experiment experiment;
        experiment.setInitial(0, row.first);
        experiment.setInitial(1, row.second);
        ASSERT_TRUE(experiment.canBalance()) << row.first;
        experiment.balance();
        EXPECT_EQ(experiment.mixture().initial, row.balanced) << row.first;
        EXPECT_EQ(experiment.mixture().limiting(), Limiting::Both);
        EXPECT_FALSE(experiment.canBalance());
    }
    Experiment experiment;
    Exercise exercise;
    exercise.mixture = mixtureOf("méthane", 2, 3);
    exercise.locked = {true, false};
    exercise.hidesResults = true;
    experiment.setExercise(exercise);
    EXPECT_FALSE(experiment.canBalance()); // that would be the answer
    experiment.reveal();
    EXPECT_TRUE(experiment.canBalance());
    experiment.setReaction(kReactions[4]);
    experiment.setInitial(0, 1);
    EXPECT_EQ(experiment.mixture(), exercise.mixture);
}

TEST(ReactionExercises, theShippedOnesAreAnsweredByTheReaction) {
    const auto exercise = [](const char* number) {
        return shipped(REACTION_EXERCISES, QString::fromUtf8(number) + ".E20", parseExercise);
    };
    const Mixture propane = exercise("03").mixture;
    expectAnswered(exercise("03"), propane.amount(2, propane.maximum()));
    Mixture zinc = exercise("04").mixture;
    while (zinc.amount(0, zinc.maximum()) < 0.2 - 1e-9)
        zinc.initial[0] += 0.01;
    expectAnswered(exercise("04"), zinc.initial[0]);
    Exercise given = exercise("05");
    EXPECT_TRUE(given.hidesResults && given.locked[0] && !given.locked[1]);
    given.hidesResults = false;
    Experiment experiment;
    experiment.setExercise(given);
    experiment.balance();
    expectAnswered(given, experiment.mixture().initial[1]);
}

TEST(ReactionExercises, damagedSituationsAreRefusedWithAReason) {
    expectRefused(parseExercise,
                  {"reaction=feu", "n1=7", "n2=-1", "n3=1", "n1=peu", "verrou=n3", "cache=tout"});
}
