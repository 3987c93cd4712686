#pragma once

#include "shell/shared_state.h"
#include "viewer/collaborators.h"
#include "viewer/page_loader.h"
#include "viewer/page_view.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace viewer {

/// Starts the sibling program of a launch code.
class ModuleStarter {
public:
    virtual ~ModuleStarter() = default;
    virtual void launchModule(std::int16_t code) = 0;
};

/// Runs page codes: "PAG", "EXE", "EXO" or "BDC" and a number. The prefix counts to the letter
/// case; a code with any other does nothing.
class ActionDispatcher {
public:
    ActionDispatcher(shell::SharedState& state, PageLoader& loader, PageView& view,
                     ModuleStarter& modules, ModalWindow& exercise, ModalWindow& orderForm);

    /// Runs `code`; "EXO" replaces it by the code of the page to go back to, when there is one.
    void runAction(QString& code);
    /// The same for callers who do not look at the code afterwards.
    void run(QString code) { runAction(code); }

    /// Shows the page of a reading-order index; outside the table the current page shows again.
    void showPageByOrder(std::int32_t index);

private:
    void showPageByNumber(double number);
    void openExercise(QString& code);
    void show(std::optional<std::int16_t> position);

    shell::SharedState& state_;
    PageLoader& loader_;
    PageView& view_;
    ModuleStarter& modules_;
    ModalWindow& exercise_;
    ModalWindow& orderForm_;
};

} // namespace viewer
