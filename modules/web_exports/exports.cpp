// Simulations as JavaScript runs them: of each module one at a time, which lives as long as the
// program or until another is opened. Whatever number or text comes from outside is held within
// what there is.

#include "browser/exchange.h"
#include "common/formula_parts.h"
#include "common/french_number.h"
#include "common/ticks.h"
#include "web_exports/simulations.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

using namespace modules;
using browser::give;
using browser::kFieldEnd;
using browser::kRecordEnd;
using common::Control;

/// More than a double has.
constexpr int kMostDecimals = 20;

std::map<int, std::unique_ptr<View>> views; // by module

/// The simulation of a module; the first of all for a number that none has.
View& viewOf(int module) {
    const Simulation& simulation = simulationOf(module);
    std::unique_ptr<View>& view = views[simulation.module];
    std::u16string why;
    if (!view)
        view = simulation.open({}, why);
    return *view;
}

/// Texts for JavaScript, record by record.
class Records {
public:
    Records& field(std::u16string_view text) {
        all_.append(text).append(1, kFieldEnd);
        return *this;
    }
    Records& field(int number) { return field(browser::decimal(number)); }
    void end() { all_ += kRecordEnd; }
    std::size_t give() const { return ::give(all_); }

private:
    std::u16string all_;
};

void addNumber(Records& records, const Control& control) {
    const common::Number& number = control.number;
    const std::u16string value = common::frenchNumber(control.value, number.decimals);
    records.field(value)
        .field(number.unit)
        .field(value + common::unitBehind(number.unit))
        .field(number.positionOf(control.value))
        .field(number.positionOf(number.most));
}

/// A list shows words. What words show is not said once more.
void addOption(Records& records, const Control& control, const common::Option& option) {
    const bool isPlain = control.kind == Control::Kind::List;
    records.field(isPlain ? option.words : formulaOf(option))
        .field(option.formula.empty() ? u"" : option.words);
}

void addParts(std::u16string& all, const common::FormulaRow& row) {
    using Kind = common::FormulaPart::Kind;
    for (const common::FormulaPart& part : row) {
        if (part.kind == Kind::Text) {
            all.append(part.italic ? u"i" : u"t").append(part.text).append(1, kFieldEnd);
            continue;
        }
        all += static_cast<char16_t>(u'0' + static_cast<int>(part.kind));
        addParts(all, part.first);
        addParts(all, part.second);
    }
    all += kRecordEnd;
}

template <class Change>
void change(int module, int which, Change change) {
    const common::Controls controls = viewOf(module).controls();
    if (which >= 0 && std::cmp_less(which, controls.size())) {
        const Control& control = controls[static_cast<std::size_t>(which)];
        if (control.isEnabled)
            change(control);
    }
}

} // namespace

/// Opens a module's simulation anew, with the exercise whose text the caller has put there; without
/// one for 0 units. Gives why it cannot be, and has none then.
ORVALENTE_EXPORTED(simulationOpen) std::size_t simulationOpen(int module, std::size_t units) {
    const Simulation& simulation = simulationOf(module);
    std::u16string why;
    views[simulation.module] = simulation.open(browser::takenText(units), why);
    viewOf(module);
    return give(why);
}

/// Title; captions of the views; a caption, and 1 for what is shown at first, for each box of the
/// first of them. Then, of what runs, the slider's name, why nothing does, one step by hand, ms,
/// and 1 for what can be slower and faster than the clock. A record each.
ORVALENTE_EXPORTED(simulationAbout) std::size_t simulationAbout(int module) {
    const common::About& about = viewOf(module).about();
    Records records;
    records.field(about.title).end();
    for (const char16_t* const view : about.views)
        records.field(view);
    records.end();
    for (const common::Box& box : about.boxes)
        records.field(box.caption).field(box.isShown ? 1 : 0);
    records.end();
    if (const common::Transport* const transport = about.transport) {
        records.field(transport->slider).field(transport->nothing);
        records.field(static_cast<int>(std::lround(1000 * transport->step)));
        records.field(transport->hasRates ? 1 : 0).end();
    }
    return records.give();
}

/// A record for each control: kind, name, formula, hint, 1 when it is shown, 1 when it is enabled,
/// the place of the choice taken. Then of a number its text, unit, text with unit, the slider's
/// position and the last one; of options a formula, of
/// a list words, and what is said where that is another.
ORVALENTE_EXPORTED(simulationControls) std::size_t simulationControls(int module) {
    Records records;
    for (const Control& one : viewOf(module).controls()) {
        records.field(static_cast<int>(one.kind)).field(one.name).field(one.formula);
        records.field(one.hint).field(one.isShown ? 1 : 0).field(one.isEnabled ? 1 : 0);
        records.field(one.options.empty() ? 0 : static_cast<int>(one.value));
        if (one.kind == Control::Kind::Number)
            addNumber(records, one);
        for (const common::Option& option : one.options)
            addOption(records, one, option);
        records.end();
    }
    return records.give();
}

/// Gives a control another number or choice, or presses it.
ORVALENTE_EXPORTED(simulationChange) void simulationChange(int module, int control, double value) {
    if (std::isfinite(value)) // what was typed may be no number
        change(module, control, [=](const Control& one) {
            // The place of a choice that there is not is that of the last.
            const double last = static_cast<double>(one.options.size()) - 1;
            one.change(one.options.empty() ? value : std::clamp(value, 0.0, last));
        });
}

/// The same of a number by the text that the caller has put there; what is no number is none.
ORVALENTE_EXPORTED(simulationType)
void simulationType(int module, int control, std::size_t units) {
    const auto value = common::numberFrom(browser::takenText(units));
    change(module, control, [&](const Control& one) {
        if (one.kind == Control::Kind::Number && value)
            one.change(*value);
    });
}

/// The same by the position of a number's slider.
ORVALENTE_EXPORTED(simulationSlide) void simulationSlide(int module, int control, int position) {
    change(module, control, [=](const Control& one) {
        if (one.kind == Control::Kind::Number)
            one.change(one.number.valueAt(std::max(0, position)));
    });
}

/// A record for each group: its name, then name, value and spoken name of each reading.
ORVALENTE_EXPORTED(simulationReadings) std::size_t simulationReadings(int module) {
    Records records;
    for (const common::ReadingGroup& group : viewOf(module).readings()) {
        records.field(group.name);
        for (const common::Reading& one : group.readings)
            records.field(one.name).field(one.value).field(one.spoken);
        records.end();
    }
    return records.give();
}

/// A record of the columns, head as a formula or plain and kind; then the rows.
ORVALENTE_EXPORTED(simulationTable) std::size_t simulationTable(int module) {
    const common::Table table = viewOf(module).table();
    Records records;
    for (const common::Column& column : table.columns)
        records.field(column.formula.empty() ? u"\\text{" + column.plain + u'}' : column.formula)
            .field(static_cast<int>(column.kind));
    records.end();
    for (const std::vector<std::u16string>& row : table.rows) {
        for (const std::u16string& cell : row)
            records.field(cell);
        records.end();
    }
    return records.give();
}

/// A record for each law: words, and a formula but for headings.
ORVALENTE_EXPORTED(simulationLaws) std::size_t simulationLaws(int module) {
    Records records;
    for (const common::Law& law : viewOf(module).laws())
        records.field(law.words).field(law.formula).end();
    return records.give();
}

/// Title, question, unit and paragraphs of the task, a record each; none without an exercise.
ORVALENTE_EXPORTED(simulationTask) std::size_t simulationTask(int module) {
    Records records;
    if (const common::Task* const task = viewOf(module).task()) {
        for (const std::u16string& text : {task->title, task->question, task->unit})
            records.field(text).end();
        for (const std::u16string& paragraph : task->statement)
            records.field(paragraph).end();
    }
    return records.give();
}

/// Judges the answer that the caller has put there: 0 for no number, 1 for wrong, 2 for right; then
/// what is said of it. A right one reveals what the exercise withheld.
ORVALENTE_EXPORTED(simulationJudge) std::size_t simulationJudge(int module, std::size_t units) {
    const common::Task* const task = viewOf(module).task();
    if (task == nullptr)
        return give(u"");
    const common::Answer answer = task->judge(browser::takenText(units));
    const std::u16string verdict = task->verdict(answer);
    if (answer == common::Answer::Right)
        viewOf(module).reveal();
    return give(browser::decimal(static_cast<int>(answer)) + kFieldEnd + verdict);
}

/// Numbers for the module's own drawings.
ORVALENTE_EXPORTED(simulationNumbers)
std::size_t simulationNumbers(int module, int what, int which) {
    return browser::giveNumbers(viewOf(module).numbers(what, which));
}

/// Texts for them, a record each.
ORVALENTE_EXPORTED(simulationWords) std::size_t simulationWords(int module) {
    Records records;
    for (const std::u16string& text : viewOf(module).words())
        records.field(text).end();
    return records.give();
}

ORVALENTE_EXPORTED(simulationPull)
void simulationPull(int module, int what, double x, double y) {
    if (std::isfinite(x) && std::isfinite(y))
        viewOf(module).pull(what, x, y);
}

/// Name and value of the moment, for who reads them.
ORVALENTE_EXPORTED(simulationMoment) std::size_t simulationMoment(int module) {
    const common::Reading moment = viewOf(module).moment();
    return Records().field(moment.name).field(moment.value).give();
}

/// Time, duration, s, and 1 while it runs; nothing of what stands still.
ORVALENTE_EXPORTED(simulationTime) std::size_t simulationTime(int module) {
    const common::Player* const player = viewOf(module).player();
    if (player == nullptr)
        return browser::giveNumbers({});
    const common::Playback& playback = player->playback();
    return browser::giveNumbers(
        std::vector<double>{playback.time(), playback.duration(), double(playback.isRunning())});
}

/// What `action` means is told by common::Playback: 0 toggle, 1 pause, 2 reset, 3 step, 4 seek, 5
/// advance, each by `seconds`; `rate` is that of the last.
ORVALENTE_EXPORTED(simulationPlay)
void simulationPlay(int module, int action, double seconds, double rate) {
    common::Player* const player = viewOf(module).player();
    if (player == nullptr || !std::isfinite(seconds) || !std::isfinite(rate))
        return;
    player->play([=](common::Playback& playback) {
        switch (action) {
        case 0:
            return playback.toggle();
        case 1:
            return playback.pause();
        case 2:
            return playback.reset();
        case 3:
            return playback.step(seconds);
        case 4:
            return playback.seek(seconds);
        case 5:
            playback.setRate(rate);
            return playback.advance(seconds);
        default:
            return;
        }
    });
}

/// The parts of the formula that the caller has put there: of text "i" (italic) or "t", the text
/// and a field's end; of others the number of their kind and two rows. A row ends as records do.
ORVALENTE_EXPORTED(formulaParts) std::size_t formulaParts(std::size_t units) {
    std::u16string all;
    addParts(all, common::formulaParts(browser::takenText(units)));
    return give(all);
}

/// The same formula as one says it.
ORVALENTE_EXPORTED(formulaInWords) std::size_t formulaInWords(std::size_t units) {
    return give(common::formulaInWords(browser::takenText(units)));
}

/// Numbers as the programs write them (french_number.h).
ORVALENTE_EXPORTED(frenchNumber) std::size_t frenchNumber(double value, int decimals) {
    return give(common::frenchNumber(value, std::clamp(decimals, 0, kMostDecimals)));
}
ORVALENTE_EXPORTED(frenchDigits) std::size_t frenchDigits(double value, int digits) {
    return give(common::frenchDigits(value, digits));
}

/// The decimals that labels of an axis need, then the values where they stand.
ORVALENTE_EXPORTED(axisTicks) std::size_t axisTicks(double from, double to, int most) {
    const double step = common::tickStep(to - from, std::max(1, most));
    std::vector<double> all = {double(common::tickDecimals(step))};
    for (const double value : common::ticks(from, to, step))
        all.push_back(value);
    return browser::giveNumbers(all);
}
