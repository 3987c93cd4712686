#include "reaction/listing.h"

#include "common/french_number.h"
#include "common/words.h"

namespace reaction {

namespace {

using common::filled;

std::u16string mol(double amount) {
    return common::frenchNumber(amount, 2);
}

/// "2,00 − 3 x", a formula.
std::u16string expression(const Mixture& mixture, std::size_t species) {
    const int coefficient = mixture.reaction->all.at(species).coefficient;
    const std::u16string change =
        (coefficient > 1 ? common::decimal(coefficient) + u'\u00A0' : u"") + u'x';
    return species < kReactants ? mol(mixture.initial.at(species)) + u" − " + change : change;
}

/// A row; `amount` gives the text of the species at that place.
template <class Amount>
std::vector<std::u16string> row(const char16_t* state, const std::u16string& progress,
                                const Experiment& experiment, Amount amount) {
    std::vector<std::u16string> cells = {state, progress};
    for (std::size_t i = 0; i < experiment.reaction().count; ++i)
        cells.push_back(amount(i));
    return cells;
}

} // namespace

common::Table statesOf(const Experiment& experiment) {
    using Kind = common::Column::Kind;
    const Mixture& mixture = experiment.mixture();
    common::Table table;
    table.columns = {{u"état", {}, Kind::Names}, {u"x (mol)", u"x\\text{ (mol)}", Kind::Formulas}};
    for (const Species& one : mixture.reaction->species())
        table.columns.push_back({filled(u"n(%1) (mol)", {one.formula}),
                                 filled(u"n\\text{(}%1\\text{) (mol)}", {formulaOf(one.formula)}),
                                 Kind::Formulas});
    const auto at = [&](double progress) {
        return [&mixture, progress](std::size_t i) { return mol(mixture.amount(i, progress)); };
    };
    table.rows = {
        row(u"état initial", u"0", experiment, at(0)),
        row(u"en cours", u"x", experiment, [&](std::size_t i) { return expression(mixture, i); }),
        row(u"à cet instant", mol(experiment.progress()), experiment, at(experiment.progress()))};
    if (experiment.hidesResults())
        table.rows.push_back(
            row(u"état final", u"?", experiment, [](std::size_t) { return std::u16string(u"?"); }));
    else
        table.rows.push_back(
            row(u"état final", mol(mixture.maximum()), experiment, at(mixture.maximum())));
    return table;
}

common::Reading momentOf(const Experiment& experiment) {
    return {u"x", mol(experiment.progress()) + u"\u00A0mol"};
}

} // namespace reaction
