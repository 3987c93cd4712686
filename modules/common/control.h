#pragma once

#include "common/quantity.h"

#include <functional>
#include <string>
#include <vector>

namespace common {

/// One of several that can be chosen.
struct Option {
    std::u16string words;        ///< as one reads and says it
    std::u16string formula = {}; ///< shown in their place; empty when they are
    std::u16string hint = {};
};

/// A part of the controls of a simulation, as it is in one state of it: what windows and the pages
/// of browsers make theirs of. All texts are for pupils.
struct Control {
    enum class Kind { Heading, Number, Segments, List, Button, Note };

    Kind kind;
    std::u16string name;         ///< words; for a number and options what a screen reader says
    std::u16string formula = {}; ///< a number's name with its symbol
    std::u16string hint = {};    ///< of a button
    bool isShown = true;
    bool isEnabled = true;
    Number number = {}; ///< Number
    double value = 0;   ///< of the number; place of the option taken, -1 for none
    std::vector<Option> options = {};
    /// Takes another number, or the place of an option; a button is pressed with any. Does the same
    /// whatever state it was told of in.
    std::function<void(double)> change = [](double) {};

    // Where a window puts it.
    bool isInPlaceOfLast = false; ///< at the place of the one before, which is shown when it is not
    bool isAtFoot = false;        ///< below all, apart
};

/// The controls from above; in another state of the simulation as many, of the same kinds.
using Controls = std::vector<Control>;

Control headingControl(std::u16string words);
Control noteControl(std::u16string words);
Control buttonControl(std::u16string words, std::u16string hint, bool isEnabled,
                      std::function<void()> press);

/// A number as its name and symbol tell of it.
Control numberControl(const Number& number, double value, bool isEnabled,
                      std::function<void(double)> set);

/// The control of a quantity of `model`, whose state that is.
template <class Model, class State, class Parameter>
Control quantityControl(Model& model, const State& state,
                        const Quantity<State, Parameter>& quantity) {
    return numberControl(
        quantity, state.*quantity.value, !model.isLocked(quantity.parameter),
        [&model, parameter = quantity.parameter](double value) { model.set(parameter, value); });
}

/// Options of which one is taken, `taken` by its place; `kind` is Segments or List.
Control choiceControl(Control::Kind kind, std::u16string name, std::vector<Option> options,
                      int taken, bool isEnabled, std::function<void(std::size_t)> choose);

// The same control, but so shown.
Control shownIf(bool isShown, Control control);
Control inPlaceOfLast(Control control);
Control atFoot(Control control);

/// An option as a formula, whether it is one or words.
std::u16string formulaOf(const Option& option);

} // namespace common
