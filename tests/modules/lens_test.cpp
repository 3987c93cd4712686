#include "lens/bench.h"
#include "lens/rays.h"
#include "modules/shipped_exercises.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace lens;

namespace {

Arrangement arrangementOf(double distance, double focal) {
    Arrangement arrangement;
    arrangement.distance = distance;
    arrangement.focalLength = std::fabs(focal);
    arrangement.kind = focal < 0 ? Kind::Diverging : Kind::Converging;
    return arrangement;
}

/// How far `point` is from the line through both ends, cm.
double distance(const Segment& line, Point point) {
    const Point along{line.to.x - line.from.x, line.to.y - line.from.y};
    const Point to{point.x - line.from.x, point.y - line.from.y};
    return std::fabs(along.x * to.y - along.y * to.x) / std::hypot(along.x, along.y);
}

} // namespace

TEST(Image, standsWhereTextbooksPutIt) {
    const struct {
        double distance, focal, place, magnification;
        const char* like;
    } rows[] = {
        {30, 20, 60, -2, "réelle, renversée, agrandie"},
        {60, 20, 30, -0.5, "réelle, renversée, réduite"},
        {40, 20, 40, -1, "réelle, renversée, de même taille"},
        {10, 20, -20, 2, "virtuelle, droite, agrandie"},
        {30, -15, -10, 1.0 / 3, "virtuelle, droite, réduite"},
        {5, -50, -50.0 / 11, 10.0 / 11, "virtuelle, droite, réduite"},
    };
    for (const auto& row : rows) {
        const Image image(arrangementOf(row.distance, row.focal));
        EXPECT_NEAR(image.place(), row.place, 1e-9) << row.distance << ' ' << row.focal;
        EXPECT_NEAR(image.magnification(), row.magnification, 1e-9) << row.distance;
        EXPECT_NEAR(image.height(), 2 * row.magnification, 1e-9);
        EXPECT_EQ(common::qtText(describe(image)), QString::fromUtf8(row.like));
    }
    const Image far(arrangementOf(20, 20));
    EXPECT_TRUE(far.isAtInfinity());
    EXPECT_FALSE(far.isReal());
    EXPECT_EQ(far.spot(40), 2 * kLensRadius); // a beam as wide as the lens
}

TEST(Image, isSharpWhereItIsAndABlurElsewhere) {
    const Image image(arrangementOf(30, 20));
    EXPECT_NEAR(image.spot(60), 0, 1e-12);
    EXPECT_NEAR(image.spot(30), kLensRadius, 1e-12); // half way
    EXPECT_NEAR(image.spot(120), 2 * kLensRadius, 1e-12);
    EXPECT_GT(Image(arrangementOf(10, 20)).spot(20), 2 * kLensRadius);
}

TEST(Rays, meetInTheImageOfTheTipWhateverTheSetup) {
    for (const double focal : {5.0, 12.5, 20.0, 50.0, -5.0, -20.0, -50.0}) {
        for (const double where : {5.0, 12.0, 19.5, 20.5, 33.0, 150.0}) {
            const Arrangement arrangement = arrangementOf(where, focal);
            const Image image(arrangement);
            if (image.isAtInfinity())
                continue;
            const Point tip{image.place(), image.height()};
            const std::vector<Ray> rays = principalRays(arrangement, -400, 400);
            ASSERT_EQ(rays.size(), 3U) << where << ' ' << focal;
            for (const Ray& ray : rays) {
                EXPECT_EQ(ray.light[0].from, (Point{-where, 2}));
                EXPECT_EQ(ray.light[0].to, ray.light[1].from); // at the lens
                EXPECT_EQ(ray.light[0].to.x, 0);
                EXPECT_LT(distance(ray.light[1], tip), 1e-7) << where << ' ' << focal;
            }
            // What makes each of them easy to draw.
            EXPECT_LT(distance(rays[0].light[1], rays[0].light[0].from), 1e-9);
            EXPECT_EQ(rays[1].light[0].to.y, 2);
            EXPECT_LT(distance(rays[1].light[1], {focal, 0}), 1e-9);
            EXPECT_LT(distance(rays[2].light[0], {-focal, 0}), 1e-9);
            EXPECT_EQ(rays[2].light[1].to.y, rays[2].light[1].from.y);
        }
    }
}

TEST(Rays, areExtendedWhereLightOnlySeemsToComeFrom) {
    const auto ends = [](const Arrangement& arrangement, double left) {
        std::vector<std::vector<Point>> all;
        for (const Ray& ray : principalRays(arrangement, left, 100)) {
            all.emplace_back();
            for (const Segment& one : ray.extension)
                all.back().push_back(one.to);
        }
        return all;
    };
    using Ends = std::vector<std::vector<Point>>;
    EXPECT_EQ(ends(arrangementOf(30, 20), -100), (Ends{{}, {}, {}}));
    // A magnifying glass: back to B′, and the third ray as if it came from F.
    EXPECT_EQ(ends(arrangementOf(10, 20), -100),
              (Ends{{{-20, 4}}, {{-20, 4}}, {{-20, 4}, {-20, 0}}}));
    // B′ lies on the ray through O; the second comes from F′, the third goes to F.
    const Ends spread = ends(arrangementOf(30, -15), -100);
    EXPECT_TRUE(spread[0].empty());
    EXPECT_EQ(spread[1].back(), (Point{-15, 0}));
    EXPECT_EQ(spread[2].back(), (Point{15, 0}));
    for (const auto& ray : ends(arrangementOf(19.9, 20), -50)) // far off the drawing
        for (const Point& end : ray)
            EXPECT_GE(end.x, -50.001);
    EXPECT_EQ(principalRays(arrangementOf(20, 20), -100, 100).size(),
              2U); // the third never meets the lens
}

TEST(Bench, holdsNumbersWithinLimitsAndLeavesLockedOnesAlone) {
    Bench bench;
    bench.set(Parameter::Distance, 1000);
    bench.set(Parameter::Screen, -3);
    EXPECT_EQ(bench.arrangement().distance, 150);
    EXPECT_EQ(bench.arrangement().screen, 5);
    Exercise exercise;
    exercise.locked = {Parameter::FocalLength, Parameter::Height};
    bench.setExercise(exercise);
    bench.set(Parameter::FocalLength, 10);
    bench.setKind(Kind::Diverging);
    bench.set(Parameter::Height, 5);
    EXPECT_EQ(bench.arrangement(), Arrangement());
}

TEST(Bench, takesASharpImageOnceAndPutsTheScreenThere) {
    Bench bench;
    EXPECT_FALSE(bench.canMeasure()); // blurred
    bench.set(Parameter::Distance, 37);
    ASSERT_TRUE(bench.canFocus());
    bench.focus();
    EXPECT_TRUE(bench.isSharp());
    EXPECT_NEAR(bench.arrangement().screen, 1 / (1 / 20.0 - 1 / 37.0), 0.05);
    bench.measure();
    bench.measure();
    ASSERT_EQ(bench.measures().size(), 1U);
    EXPECT_NEAR(1 / bench.measures()[0].screen - 1 / bench.measures()[0].object, 1 / 20.0, 1e-4);
    for (int i = 0; i < 100; ++i) {
        bench.set(Parameter::Distance, 40 + i);
        bench.focus();
        bench.measure();
    }
    EXPECT_EQ(bench.measures().size(), Bench::kMostMeasures);
    for (const double where : {10.0, 20.0, 20.5}) { // virtual, at infinity, beyond the bench
        bench.set(Parameter::Distance, where);
        EXPECT_FALSE(bench.canFocus() || bench.isSharp()) << where;
    }
}

TEST(Bench, withholdsWhatAnExerciseAsksFor) {
    Bench bench;
    Exercise exercise;
    exercise.hidesLens = true;
    bench.setExercise(exercise);
    EXPECT_TRUE(bench.hidesResults() && bench.hidesLens());
    EXPECT_FALSE(bench.canFocus());
    // Not even that there is no image to be looked for.
    bench.set(Parameter::Distance, 10);
    EXPECT_EQ(describeScreen(bench), u"image floue");
    bench.reveal();
    EXPECT_FALSE(bench.hidesResults() || bench.hidesLens());
    EXPECT_EQ(describeScreen(bench), u"pas d’image ici");
}

TEST(LensExercises, theShippedOnesAreAnsweredByTheBench) {
    const auto answer = [](const QString& number) {
        Arrangement arrangement =
            shipped(LENS_EXERCISES, number + ".E24", parseExercise).arrangement;
        if (number == "01") // from where the image is, as a pupil finds it
            return 1 / (1 / Image(arrangement).place() + 1 / arrangement.distance);
        if (number == "03")
            return Image(arrangement).magnification();
        for (arrangement.distance = 15.01; Image(arrangement).magnification() < -3;)
            arrangement.distance += 0.01;
        return arrangement.distance;
    };
    for (const QString number : {"01", "02", "03"})
        expectAnswered(shipped(LENS_EXERCISES, number + ".E24", parseExercise), answer(number));
    EXPECT_TRUE(shipped(LENS_EXERCISES, "01.E24", parseExercise).hidesLens);
    EXPECT_EQ(shipped(LENS_EXERCISES, "03.E24", parseExercise).arrangement.kind, Kind::Diverging);
}

TEST(LensExercises, damagedSituationsAreRefusedWithAReason) {
    expectRefused(parseExercise,
                  {"distance=4", "distance=151", "focale=-4", "focale=0", "taille=-2", "ecran=loin",
                   "verrou=tout", "cache=tout", "vitesse=3"});
}
