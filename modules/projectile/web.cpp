#include "projectile/web.h"

#include "common/french_number.h"
#include "projectile/launch_text.h"
#include "projectile/laws.h"
#include "projectile/listing.h"

#include <algorithm>
#include <utility>

namespace projectile {

namespace {

using modules::Choice;
using modules::Control;

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

class View : public modules::View {
public:
    explicit View(std::optional<Exercise> exercise) : exercise_(std::move(exercise)) {
        if (exercise_)
            experiment_.setExercise(*exercise_);
    }

    std::vector<Control> controls() override {
        const Drag drag = experiment_.launch().drag;
        std::vector<Control> all = {modules::heading(u"Lancement")};
        for (const Parameter one : {Parameter::Speed, Parameter::Angle, Parameter::Height})
            all.push_back(row(one));
        all.push_back(modules::heading(u"Astre"));
        all.push_back(worlds());
        all.push_back(row(Parameter::Gravity));
        all.push_back(modules::heading(u"Projectile"));
        all.push_back(row(Parameter::Mass));
        all.push_back(modules::heading(u"Frottements de l’air"));
        all.push_back(drags());
        all.push_back(modules::note(u"Seul le poids agit\u00A0: chute libre."));
        all.back().isShown = drag == Drag::None;
        all.push_back(row(Parameter::LinearCoefficient));
        all.back().isShown = drag == Drag::Linear;
        all.push_back(row(Parameter::Diameter));
        all.back().isShown = drag == Drag::Quadratic;
        all.push_back(modules::button(u"Garder la trajectoire",
                                      u"la laisse dessinée, pour la comparer aux suivantes",
                                      experiment_.canKeep(), [this] { experiment_.keep(); }));
        all.push_back(modules::button(u"Effacer", u"efface les trajectoires gardées",
                                      !experiment_.kept().empty(),
                                      [this] { experiment_.forgetKept(); }));
        return all;
    }

    std::vector<common::ReadingGroup> readings() const override {
        return {readingsNow(experiment_), readingsOfFlight(experiment_)};
    }
    common::Table table() const override { return valuesOf(experiment_.flight()); }
    std::vector<common::Law> laws() const override { return lawsOf(experiment_.flight()); }

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
        std::vector<std::u16string> all = {describe(experiment_.launch())};
        for (const Flight& kept : experiment_.kept())
            all.push_back(describe(kept.launch()));
        for (const Landmark& mark : experiment_.landmarks())
            all.push_back(mark.name);
        return all;
    }

    /// Speed and angle of the launch.
    void pull(int /*what*/, double x, double y) override { experiment_.aim(x, y); }

    common::Reading moment() const override {
        return {u"t", common::frenchNumber(experiment_.playback().time(), 2) + u"\u00A0s"};
    }
    common::Player* player() override { return &experiment_.player(); }
    const common::Task* task() const override { return exercise_ ? &*exercise_ : nullptr; }
    void reveal() override { experiment_.reveal(); }

private:
    Control row(Parameter parameter) {
        const Quantity& which = quantity(parameter);
        return modules::numberControl(
            which, experiment_.launch().*which.value, !experiment_.isLocked(parameter),
            [this, parameter](double value) { experiment_.set(parameter, value); });
    }

    Control worlds() {
        Control choice = {.kind = Control::Kind::Segments,
                          .name = u"Astre",
                          .isEnabled = !experiment_.isLocked(Parameter::Gravity),
                          .value = -1,
                          .change = [this](double which) {
                              experiment_.setWorld(kWorlds.at(static_cast<std::size_t>(which)));
                          }};
        const std::optional<World> now = worldOf(experiment_.launch());
        for (std::size_t i = 0; i < kWorlds.size(); ++i) {
            const World& world = kWorlds.at(i);
            choice.choices.push_back({std::u16string(u"\\text{") + world.name + u'}'});
            if (now && now->gravity == world.gravity)
                choice.value = static_cast<double>(i);
        }
        return choice;
    }

    Control drags() {
        return {.kind = Control::Kind::Segments,
                .name = u"Frottements de l’air",
                .isEnabled = !experiment_.isDragLocked(),
                .value = static_cast<double>(experiment_.launch().drag),
                .choices = {{u"\\text{aucun}"}, {u"f = k v", u"f = k v"}, {u"f ∝ v^2", u"f ∝ v²"}},
                .change = [this](double which) {
                    experiment_.setDrag(static_cast<Drag>(static_cast<int>(which)));
                }};
    }

    /// Duration, range, x and y of the highest point, height of the start, then moments.
    std::vector<double> ofFlight(int which) const {
        const bool isKept = which >= 0 && std::cmp_less(which, experiment_.kept().size());
        const Flight& flight =
            isKept ? experiment_.kept()[static_cast<std::size_t>(which)] : experiment_.flight();
        std::vector<double> all = {flight.duration(), flight.range(), flight.apex().x,
                                   flight.apex().y, flight.start().y};
        for (int i = 0; i <= kPathParts; ++i)
            addMoment(all, flight, flight.at(flight.duration() * i / kPathParts));
        return all;
    }

    /// The stroboscope's interval, then its moments and the landing.
    std::vector<double> ofStrobe() const {
        const Flight& flight = experiment_.flight();
        std::vector<double> all = {strobeInterval(flight.duration())};
        for (const Moment& moment : strobeMoments(flight))
            addMoment(all, flight, moment);
        return all;
    }

    /// The moment, then the acceleration across and up, and how many flights are kept.
    std::vector<double> ofNow() const {
        const Moment now = experiment_.now();
        const Acceleration acceleration = experiment_.flight().acceleration(now);
        std::vector<double> all;
        addMoment(all, experiment_.flight(), now);
        all.insert(all.end(), {acceleration.x, acceleration.y,
                               static_cast<double>(experiment_.kept().size())});
        return all;
    }

    std::vector<double> ofLandmarks() const {
        std::vector<double> all;
        for (const Landmark& mark : experiment_.landmarks())
            all.insert(all.end(), {mark.x, mark.y});
        return all;
    }

    std::optional<Exercise> exercise_;
    Experiment experiment_;
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace projectile
