#pragma once

#include "exercises/choices.h"

#include <optional>
#include <string>

namespace exercises {

/// Arrays of choice controls, indices 0 to kChoices - 1.
enum class ChoiceArray { Check1, Option1 };

/// The controls in which questions are answered, as the drawing of the question has placed them.
class AnswerControls {
public:
    virtual ~AnswerControls() = default;

    virtual bool isVisible(ChoiceArray array, int index) const = 0;
    virtual bool isSelected(ChoiceArray array, int index) const = 0;
    /// Selects or unselects just this control, whether it is enabled or not. Option buttons too can
    /// all be unselected.
    virtual void setSelected(ChoiceArray array, int index, bool selected) = 0;
    virtual void disable(ChoiceArray array, int index) = 0;
    /// Paints a mark on the question beside the control.
    virtual void paintMark(ChoiceArray array, int index, Mark mark) = 0;

    virtual std::u16string typedText() const = 0; ///< of `Text1`
    virtual void setTypedText(const std::u16string& text) = 0;
    virtual void disableTypedText() = 0;
    /// Shows in the answer box what the typed answer was worth.
    virtual void markTypedText(Mark mark) = 0;
};

/// What an answer was worth.
struct Verdict {
    bool right = false;
    std::u16string expected; ///< the word that a wrong typed answer lacks; empty for choices

    bool operator==(const Verdict&) const = default;
};

/// What a box says.
struct Message {
    std::u16string title;
    std::u16string text;

    bool operator==(const Message&) const = default;
};

/// The test's window as its session knows it.
class TestView {
public:
    virtual ~TestView() = default;

    virtual void setTitle(const std::u16string& title) = 0;     ///< `Label2`
    virtual void setCaption(const std::u16string& caption) = 0; ///< `noa`
    virtual void setPreviousVisible(bool visible) = 0;          ///< `Command3`
    virtual void setNextVisible(bool visible) = 0;              ///< `command4`
    virtual void setValidateVisible(bool visible) = 0;          ///< `command5` and `Label3`
    virtual void setScoreVisible(bool visible) = 0;             ///< `command6` and `Label5`

    /// Says beside the caption what the answer was worth; nothing for a question not answered.
    virtual void setVerdict(const std::optional<Verdict>& verdict) = 0;

    /// Puts the marker (`Image4`) to the middle of a question's band; `count` is at least 1.
    virtual void placeMarker(int question, int count) = 0;
    virtual void setMarkerVisible(bool visible) = 0;
    /// Gives the marker one of the faces 1 to 7.
    virtual void setFace(int face) = 0;

    /// Whether the summary of the test can be asked for: every question has been answered.
    virtual void offerSummary(bool offered) = 0;
    /// Shows the summary in the place of the question, until another one is drawn.
    virtual void showSummary() = 0;

    virtual void repaintStrip() = 0; ///< `Picture1`, from the state of the test
    virtual void focusStrip() = 0;

    /// Empties the question area (`Picture2`), and hides and resets everything on it: choices
    /// unselected and enabled, the typed text empty and enabled, link and video icon gone.
    virtual void misanet() = 0;
    /// Draws a page source onto the emptied question area, which shows the controls it asks for.
    virtual void drawQuestion(const std::u16string& source) = 0;

    /// Shows the popup after a right answer (`Cjuste`) and returns once it has gone.
    virtual void showRightAnswer() = 0;

    /// Shows a message and returns once it has been read.
    virtual void tell(const Message& message) = 0;
    /// Asks a question and returns whether the answer was yes; a box closed without one says no.
    virtual bool ask(const Message& question) = 0;
};

/// The main window as the test knows it.
class CourseWindow {
public:
    virtual ~CourseWindow() = default;
    /// Hides the button that leads back to the test (`btexo` and `Label16`).
    virtual void hideReturnToTest() = 0;
};

} // namespace exercises
