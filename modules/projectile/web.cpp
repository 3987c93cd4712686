#include "projectile/web.h"

#include "projectile/about.h"
#include "projectile/controls.h"
#include "projectile/launch_text.h"
#include "projectile/laws.h"
#include "projectile/listing.h"

#include <utility>

namespace projectile {

namespace {

/// What the page asks for by number, of the flight that the controls describe (-1) or one kept.
enum class Asked { Flight, Strobe, Now, Landmarks };

/// Of a path's time; enough for a smooth line.
constexpr int kPathParts = 240;

/// Seven numbers: t, x, y, vx, vy, kinetic and potential energy.
void addMoment(std::vector<double>& numbers, const Flight& flight, const Moment& moment) {
    const Energies energies = flight.energies(moment);
    numbers.insert(numbers.end(), {moment.t, moment.x, moment.y, moment.vx, moment.vy,
                                   energies.kinetic, energies.potential});
}

class View : public modules::ModelView<Experiment, Exercise> {
public:
    explicit View(std::optional<Exercise> exercise) : ModelView(kAbout, std::move(exercise)) {}

    std::vector<common::ReadingGroup> readings() const override {
        return {readingsNow(model()), readingsOfFlight(model())};
    }
    common::Table table() const override { return valuesOf(model().flight()); }

    std::vector<double> numbers(int what, int which) const override {
        switch (static_cast<Asked>(what)) {
        case Asked::Flight:
            return ofFlight(which);
        case Asked::Strobe:
            return ofStrobe();
        case Asked::Now:
            return ofNow();
        default:
            return ofLandmarks();
        }
    }

    /// What tells the flight of the controls from those kept, these, and names of the landmarks.
    std::vector<std::u16string> words() const override {
        std::vector<std::u16string> all = {describe(model().launch())};
        for (const Flight& kept : model().kept())
            all.push_back(describe(kept.launch()));
        for (const Landmark& mark : model().landmarks())
            all.push_back(mark.name);
        return all;
    }

    /// Speed and angle of the launch.
    void pull(int /*what*/, double x, double y) override { model().aim(x, y); }

    common::Reading moment() const override { return momentOf(model()); }
    common::Player* player() override { return &model().player(); }

private:
    /// Duration, range, x and y of the highest point, height of the start, then moments.
    std::vector<double> ofFlight(int which) const {
        const bool isKept = which >= 0 && std::cmp_less(which, model().kept().size());
        const Flight& flight =
            isKept ? model().kept()[static_cast<std::size_t>(which)] : model().flight();
        std::vector<double> all = {flight.duration(), flight.range(), flight.apex().x,
                                   flight.apex().y, flight.start().y};
        for (int i = 0; i <= kPathParts; ++i)
            addMoment(all, flight, flight.at(flight.duration() * i / kPathParts));
        return all;
    }

    /// The stroboscope's interval, then its moments and the landing.
    std::vector<double> ofStrobe() const {
        const Flight& flight = model().flight();
        std::vector<double> all = {strobeInterval(flight.duration())};
        for (const Moment& moment : strobeMoments(flight))
            addMoment(all, flight, moment);
        return all;
    }

    /// The moment, then the acceleration across and up, and how many flights are kept.
    std::vector<double> ofNow() const {
        const Moment now = model().now();
        const Acceleration acceleration = model().flight().acceleration(now);
        std::vector<double> all;
        addMoment(all, model().flight(), now);
        all.insert(all.end(),
                   {acceleration.x, acceleration.y, static_cast<double>(model().kept().size())});
        return all;
    }

    std::vector<double> ofLandmarks() const {
        std::vector<double> all;
        for (const Landmark& mark : model().landmarks())
            all.insert(all.end(), {mark.x, mark.y});
        return all;
    }
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace projectile
