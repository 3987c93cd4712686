#pragma once

#include "common/about.h"
#include "common/control.h"
#include "common/law.h"
#include "common/player.h"
#include "common/reading.h"
#include "common/table.h"
#include "common/task.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace modules {

/// A simulation as the page of a browser shows it: what stands in it is told here, how it looks is
/// the page's own matter. Texts for pupils; names in formulas are those of common::FormulaPart.
class View {
public:
    virtual ~View() = default;

    virtual const common::About& about() const = 0;
    virtual common::Controls controls() = 0;

    virtual std::vector<common::ReadingGroup> readings() const { return {}; }
    virtual common::Table table() const = 0;
    virtual std::vector<common::Law> laws() const = 0;

    /// Numbers for the module's own drawings: what they are is between both.
    virtual std::vector<double> numbers(int what, int which) const = 0;
    /// Texts for them, formulas included.
    virtual std::vector<std::u16string> words() const { return {}; }

    /// Something in the drawing was pulled to a place.
    virtual void pull(int /*what*/, double /*x*/, double /*y*/) {}

    /// The moment as it is read: "t", "0,02 s".
    virtual common::Reading moment() const { return {}; }
    /// Null for what stands still.
    virtual common::Player* player() { return nullptr; }

    /// The task of an exercise; null without one.
    virtual const common::Task* task() const = 0;
    /// After a right answer nothing is withheld.
    virtual void reveal() = 0;
};

/// What is alike in the views of all simulations: a `Model` with its exercise, of which
/// `controlsOf` and `lawsOf` tell.
template <class Model, class Exercise>
class ModelView : public View {
public:
    ModelView(const common::About& about, std::optional<Exercise> exercise)
        : about_(about), exercise_(std::move(exercise)) {
        if (exercise_)
            model_.setExercise(*exercise_);
    }

    const common::About& about() const override { return about_; }
    common::Controls controls() override { return controlsOf(model_); }
    std::vector<common::Law> laws() const override { return lawsOf(model_); }
    const common::Task* task() const override { return exercise_ ? &*exercise_ : nullptr; }
    void reveal() override { model_.reveal(); }

protected:
    Model& model() { return model_; }
    const Model& model() const { return model_; }

private:
    const common::About& about_;
    std::optional<Exercise> exercise_;
    Model model_;
};

/// Opens a simulation with an exercise, given as the text of its file; empty for none. Null, with
/// one French sentence in `why`, when that is no such exercise.
using Open = std::unique_ptr<View> (*)(std::u16string_view exercise, std::u16string& why);

/// The whole of an `Open`: `parse` reads the exercise for `NewView`, which is made with it or with
/// none.
template <class NewView, class Exercise>
std::unique_ptr<View> opened(std::u16string_view text, std::u16string& why,
                             std::optional<Exercise> (*parse)(std::u16string_view,
                                                              std::u16string&)) {
    if (text.empty())
        return std::make_unique<NewView>(std::nullopt);
    std::optional<Exercise> exercise = parse(text, why);
    return exercise ? std::make_unique<NewView>(std::move(exercise)) : nullptr;
}

} // namespace modules
