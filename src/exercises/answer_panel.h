#pragma once

#include "exercises/test_view.h"
#include "markup/drawn_page.h"
#include "page/faces/font_book.h"

#include <QAbstractButton>
#include <QObject>
#include <QRect>

#include <array>
#include <functional>
#include <vector>

namespace look {
class PictureBox;
} // namespace look

namespace exercises {

class AnswerBox;
class LinkCaption;
class LinkIcon;
class QuestionLink;

/// What was ticked and typed, by the controls of each kind.
struct GivenAnswer {
    std::array<bool, kChoices> options{};
    std::array<bool, kChoices> checks{};
    std::u16string text;
};

/// The answer controls and links of a question, on the question area: place() shows those that the
/// drawing of the question has placed.
class AnswerPanel : public QObject, public AnswerControls {
public:
    /// `Picture2` shows `question`; all must outlive the panel's use.
    AnswerPanel(look::PictureBox& Picture2, const page::FontBook& fonts,
                markup::DrawnPage& question);

    /// Hides all controls and makes them as they were before any question.
    void reset();
    /// Shows what the fields of the question say.
    void place();

    /// Called with the tag of a link that is followed.
    void onLink(std::function<void(const QString&)> follow) { follow_ = std::move(follow); }

    /// The answer as it stands, and back: a control that does not show takes nothing.
    GivenAnswer given() const;
    void give(const GivenAnswer& answer);

    /// Height down to the lowest control that shows, in pixels of the question area.
    int footPx() const;
    /// The controls that the keyboard reaches, line by line.
    std::vector<QWidget*> inReadingOrder() const;
    AnswerBox& Text1() const { return *Text1_; }
    /// Whether anything has been chosen or typed.
    bool hasAnswer() const;

    // AnswerControls
    bool isVisible(ChoiceArray array, int index) const override;
    bool isSelected(ChoiceArray array, int index) const override;
    void setSelected(ChoiceArray array, int index, bool selected) override;
    void disable(ChoiceArray array, int index) override;
    void paintMark(ChoiceArray array, int index, Mark mark) override;
    std::u16string typedText() const override;
    void setTypedText(const std::u16string& text) override;
    void disableTypedText() override;
    void markTypedText(Mark mark) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Buttons = std::array<QAbstractButton*, kChoices>;

    QAbstractButton* control(ChoiceArray array, int index) const;
    const markup::AnswerFields::Field* field(ChoiceArray array, int index) const;
    void placeChoices(ChoiceArray array);
    void placeText();
    void placeLinks();
    QAbstractButton* choiceWithWordsAt(QPoint place) const;
    std::vector<QWidget*> all() const;

    look::PictureBox& Picture2_;
    markup::DrawnPage& question_;
    Buttons Option1_{};
    Buttons Check1_{};
    AnswerBox* Text1_;
    LinkCaption* Labelien_;
    LinkIcon* Image1_;
    LinkIcon* Icovideo_;
    std::function<void(const QString&)> follow_;

    struct Words {
        QRect where;
        QAbstractButton* choice;
    };
    std::vector<Words> words_; ///< a click on the words of a choice counts as one on its sign
};

} // namespace exercises
