#pragma once

#include "common/number.h"

#include <functional>
#include <string>
#include <vector>

namespace modules {

/// One of several that can be chosen.
struct Choice {
    std::u16string formula;     ///< what is shown
    std::u16string spoken = {}; ///< as a screen reader says it; empty when that is the same
};

/// A part of the controls of a simulation.
struct Control {
    enum class Kind { Heading, Number, Segments, List, Button, Note };

    Kind kind;
    std::u16string name;         ///< words; for a number and choices what a screen reader says
    std::u16string formula = {}; ///< a number's name with its symbol
    std::u16string hint = {};    ///< of a button
    bool isShown = true;
    bool isEnabled = true;
    common::Number number = {}; ///< Number
    double value = 0;           ///< of the number; place of the choice taken, -1 for none
    std::vector<Choice> choices = {};
    /// Takes another number, or the place of a choice; a button is pressed with any.
    std::function<void(double)> change = [](double) {};
};

Control heading(std::u16string words);
Control note(std::u16string words);
Control button(std::u16string words, std::u16string hint, bool isEnabled,
               std::function<void()> press);

/// A number as its name and symbol tell of it.
Control numberControl(const common::Number& number, double value, bool isEnabled,
                      std::function<void(double)> set);

} // namespace modules
