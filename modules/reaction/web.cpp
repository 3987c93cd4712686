#include "reaction/web.h"

#include "reaction/about.h"
#include "reaction/controls.h"
#include "reaction/laws.h"
#include "reaction/listing.h"

#include <utility>

namespace reaction {

namespace {

class View : public modules::ModelView<Experiment, Exercise> {
public:
    explicit View(std::optional<Exercise> exercise) : ModelView(kAbout, std::move(exercise)) {}

    common::Table table() const override { return statesOf(model()); }

    /// 1 when the end is withheld; then of each species the coefficient, 1 for what is limiting,
    /// and the amounts at the start, now and at the end, mol, the last 0 while it is withheld.
    std::vector<double> numbers(int /*what*/, int /*which*/) const override {
        const Mixture& mixture = model().mixture();
        const bool isHidden = model().hidesResults();
        std::vector<double> all = {double(isHidden)};
        for (std::size_t i = 0; i < model().reaction().count; ++i)
            all.insert(all.end(),
                       {double(model().reaction().all.at(i).coefficient), double(isLimiting(i)),
                        mixture.amount(i, 0), model().amountNow(i),
                        isHidden ? 0 : mixture.amount(i, mixture.maximum())});
        return all;
    }

    /// The equation, what is limiting, then name and formula of each species.
    std::vector<std::u16string> words() const override {
        std::vector<std::u16string> all = {equationFormula(model().reaction()), verdictOf(model())};
        for (const Species& one : model().reaction().species()) {
            all.emplace_back(one.name);
            all.push_back(formulaOf(one.formula));
        }
        return all;
    }

    common::Reading moment() const override { return momentOf(model()); }
    common::Player* player() override { return &model().player(); }

private:
    bool isLimiting(std::size_t species) const {
        const Limiting limiting = model().mixture().limiting();
        return showsEnd(model()) && species < kReactants &&
               (limiting == Limiting::Both ||
                limiting == (species == 0 ? Limiting::First : Limiting::Second));
    }
};

} // namespace

std::unique_ptr<modules::View> openView(std::u16string_view exercise, std::u16string& why) {
    return modules::opened<View>(exercise, why, parseExercise);
}

} // namespace reaction
