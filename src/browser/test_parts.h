#pragma once

#include "browser/exchange.h"
#include "exercises/test_records.h"
#include "exercises/test_view.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace browser {

/// The choices that a drawing of a question shows: bit i for control i.
struct ShownChoices {
    std::uint8_t check = 0;
    std::uint8_t option = 0;
};

/// The questions of a test as the site has them. What they say is drawn already: a source is the
/// name of a drawing, "q3" of question 3, "q3c" of question 3 with its comment.
class SiteRecords : public exercises::TestRecords {
public:
    /// Reads what JavaScript says of a test: a record with chapter, title and count, then for each
    /// question its number, type, 1 and its solution or 0, and the choices shown without and with
    /// the comment (check, option, check, option).
    void read(std::u16string_view test);

    std::int16_t chapter() const { return chapter_; }
    /// What a drawing shows.
    ShownChoices choices(std::u16string_view drawing) const;

    exercises::TestDescription describe(std::int16_t chapter) const override;
    void moveTo(std::int16_t chapter, std::int16_t question) override;
    int type() const override;
    std::optional<std::u16string> solution() const override;
    std::u16string question() const override;
    std::u16string siFaux() const override;

private:
    struct Question {
        int number = 0;
        int type = 0;
        std::optional<std::u16string> solution;
        ShownChoices plain;
        ShownChoices commented;
    };

    std::int16_t chapter_ = 0;
    std::u16string title_;
    std::int16_t count_ = 0;
    std::vector<Question> questions_;
    const Question* current_ = nullptr;
};

/// What a test does to its window, written down for JavaScript: a record for each event, its name
/// and what goes with it.
class Events {
public:
    template <class... Values>
    void add(std::u16string_view name, const Values&... values) {
        log_ += name;
        (addField(values), ...);
        log_ += kRecordEnd;
    }
    std::u16string take() { return std::exchange(log_, {}); }

private:
    void addField(std::u16string_view text) { log_.append(1, kFieldEnd).append(text); }
    void addField(int number) { addField(decimal(number)); }

    std::u16string log_;
};

/// What is answered on the page, which tells it before each call.
struct GivenAnswer {
    unsigned check = 0; ///< bit i for control i
    unsigned option = 0;
    std::u16string typed;
};

class SiteControls : public exercises::AnswerControls {
public:
    SiteControls(Events& events, const GivenAnswer& given) : events_(events), given_(given) {}

    void setShown(ShownChoices shown) { shown_ = shown; }

    bool isVisible(exercises::ChoiceArray array, int index) const override;
    bool isSelected(exercises::ChoiceArray array, int index) const override;
    void setSelected(exercises::ChoiceArray array, int index, bool selected) override;
    void disable(exercises::ChoiceArray array, int index) override;
    void paintMark(exercises::ChoiceArray array, int index, exercises::Mark mark) override;
    std::u16string typedText() const override { return given_.typed; }
    void setTypedText(const std::u16string& text) override;
    void disableTypedText() override;
    void markTypedText(exercises::Mark mark) override;

private:
    Events& events_;
    const GivenAnswer& given_;
    ShownChoices shown_;
};

class SiteView : public exercises::TestView {
public:
    SiteView(Events& events, const SiteRecords& records, SiteControls& controls)
        : events_(events), records_(records), controls_(controls) {}

    /// What the person will have answered when a question is asked: JavaScript cannot wait in the
    /// middle of a call, so it asks first, and calls again.
    void setAnswer(bool yes) { yes_ = yes; }

    void setTitle(const std::u16string& title) override { events_.add(u"title", title); }
    void setCaption(const std::u16string& caption) override { events_.add(u"caption", caption); }
    void setPreviousVisible(bool visible) override { events_.add(u"previous", visible); }
    void setNextVisible(bool visible) override { events_.add(u"next", visible); }
    void setValidateVisible(bool visible) override { events_.add(u"validate", visible); }
    void setScoreVisible(bool visible) override { events_.add(u"score", visible); }
    void setVerdict(const std::optional<exercises::Verdict>& verdict) override;
    void placeMarker(int question, int count) override { events_.add(u"marker", question, count); }
    void setMarkerVisible(bool visible) override { events_.add(u"markerVisible", visible); }
    void setFace(int face) override { events_.add(u"face", face); }
    void offerSummary(bool offered) override { events_.add(u"summaryOffered", offered); }
    void showSummary() override { events_.add(u"summary"); }
    void repaintStrip() override { events_.add(u"strip"); }
    void focusStrip() override { events_.add(u"focusStrip"); }
    void misanet() override { events_.add(u"clear"); }
    void drawQuestion(const std::u16string& source) override;
    void showRightAnswer() override { events_.add(u"right"); }
    void tell(const exercises::Message& message) override {
        events_.add(u"tell", message.title, message.text);
    }
    bool ask(const exercises::Message& question) override {
        events_.add(u"ask", question.title, question.text);
        return yes_;
    }

private:
    Events& events_;
    const SiteRecords& records_;
    SiteControls& controls_;
    bool yes_ = false;
};

} // namespace browser
