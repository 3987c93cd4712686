#include "viewer/action_dispatcher.h"

#include "coursedata/page_index.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

namespace viewer {

ActionDispatcher::ActionDispatcher(shell::SharedState& state, PageLoader& loader, PageView& view,
                                   ModuleStarter& modules, ModalWindow& exercise,
                                   ModalWindow& orderForm)
    : state_(state), loader_(loader), view_(view), modules_(modules), exercise_(exercise),
      orderForm_(orderForm) {}

void ActionDispatcher::runAction(QString& code) {
    const QString prefix = codePrefix(code).toString();
    const double argument = codeArgument(code);
    if (prefix == u"PAG") {
        showPageByNumber(argument);
    } else if (prefix == u"EXE") {
        if (const auto launchCode = text::toInt16(argument))
            modules_.launchModule(*launchCode);
    } else if (prefix == u"EXO") {
        // A chapter that is still waiting is not overwritten: the test opens on that one.
        if (state_.PendingExerciseChapter == 0)
            state_.PendingExerciseChapter = text::toInt16(argument).value_or(0);
        openExercise(code);
    } else if (prefix == u"BDC") {
        orderForm_.open();
    }
    view_.restorePointer();
}

void ActionDispatcher::showPageByNumber(double number) {
    const auto n = text::toInt16(number);
    show(n ? coursedata::positionOfCode(state_, *n) : std::nullopt);
}

void ActionDispatcher::showPageByOrder(std::int32_t index) {
    show(coursedata::positionByOrder(state_, index));
}

void ActionDispatcher::show(std::optional<std::int16_t> position) {
    view_.showHourglass(); // reading may take its time, on a share for instance
    const bool isRead = !position || loader_.record().moveTo(*position);
    loader_.takeOverOrderIndex();
    loader_.showCurrentRecord();
    if (!isRead) // a new page clears such a line
        view_.tellUnreadablePage();
}

void ActionDispatcher::openExercise(QString& code) {
    exercise_.open();
    const bool returns = state_.ExerciseReturnPage != 0;
    view_.setReturnToTestVisible(returns);
    if (returns)
        code = pageCode(state_.ExerciseReturnPage);
}

} // namespace viewer
