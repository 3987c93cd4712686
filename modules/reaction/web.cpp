#include "reaction/web.h"

#include "common/french_number.h"
#include "common/words.h"
#include "reaction/laws.h"
#include "reaction/listing.h"

#include <utility>

namespace reaction {

namespace {

using modules::Control;

class View : public modules::View {
public:
    explicit View(std::optional<Exercise> exercise) : exercise_(std::move(exercise)) {
        if (exercise_)
            experiment_.setExercise(*exercise_);
    }

    std::vector<Control> controls() override {
        return {modules::heading(u"Réaction"),
                reactions(),
                modules::heading(u"Quantités initiales"),
                row(0),
                row(1),
                modules::button(u"Mélange stœchiométrique",
                                u"change la quantité d’un réactif pour que rien ne reste",
                                experiment_.canBalance(), [this] { experiment_.balance(); }),
                modules::note(u"La réaction est supposée totale\u00A0: elle s’arrête quand un "
                              u"réactif est épuisé.")};
    }

    std::vector<common::ReadingGroup> readings() const override { return {}; }
    common::Table table() const override { return statesOf(experiment_); }
    std::vector<common::Law> laws() const override { return lawsOf(experiment_); }

    /// 1 when the end is withheld; then of each species the coefficient, 1 for what is limiting,
    /// and the amounts at the start, now and at the end, mol, the last 0 while it is withheld.
    std::vector<double> numbers(int /*what*/, int /*which*/) const override {
        const Mixture& mixture = experiment_.mixture();
        const bool isHidden = experiment_.hidesResults();
        std::vector<double> all = {double(isHidden)};
        for (std::size_t i = 0; i < experiment_.reaction().count; ++i)
            all.insert(all.end(),
                       {double(experiment_.reaction().all.at(i).coefficient), double(isLimiting(i)),
                        mixture.amount(i, 0), experiment_.amountNow(i),
                        isHidden ? 0 : mixture.amount(i, mixture.maximum())});
        return all;
    }

    /// The equation, what is limiting, then name and formula of each species.
    std::vector<std::u16string> words() const override {
        std::vector<std::u16string> all = {equationFormula(experiment_.reaction()),
                                           verdictOf(experiment_)};
        for (const Species& one : experiment_.reaction().species()) {
            all.emplace_back(one.name);
            all.push_back(formulaOf(one.formula));
        }
        return all;
    }

    void pull(int /*what*/, double /*x*/, double /*y*/) override {}

    common::Reading moment() const override {
        return {u"x", common::frenchNumber(experiment_.progress(), 2) + u"\u00A0mol"};
    }
    common::Player* player() override { return &experiment_.player(); }
    const common::Task* task() const override { return exercise_ ? &*exercise_ : nullptr; }
    void reveal() override { experiment_.reveal(); }

private:
    bool isLimiting(std::size_t species) const {
        const Limiting limiting = experiment_.mixture().limiting();
        return showsEnd(experiment_) && species < kReactants &&
               (limiting == Limiting::Both ||
                limiting == (species == 0 ? Limiting::First : Limiting::Second));
    }

    Control reactions() {
        Control choice = {.kind = Control::Kind::List,
                          .name = u"Réaction",
                          .isEnabled = !experiment_.hasExercise(),
                          .value = static_cast<double>(&experiment_.reaction() - kReactions.data()),
                          .change = [this](double which) {
                              experiment_.setReaction(
                                  kReactions.at(static_cast<std::size_t>(which)));
                          }};
        for (const Reaction& one : kReactions)
            choice.choices.push_back({one.name});
        return choice;
    }

    Control row(std::size_t reactant) {
        const Species& species = experiment_.reaction().reactant(reactant);
        Control control = modules::numberControl(
            kAmount, experiment_.mixture().initial.at(reactant), !experiment_.isLocked(reactant),
            [this, reactant](double amount) { experiment_.setInitial(reactant, amount); });
        control.name = std::u16string(u"Quantité initiale, ") + species.name;
        control.formula =
            common::filled(u"\\text{%1 }%2", {species.name, formulaOf(species.formula)});
        return control;
    }

    std::optional<Exercise> exercise_;
    Experiment experiment_;
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace reaction
