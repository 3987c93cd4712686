#include "calculator/operators.h"

#include "calculator/normalise.h"
#include "text/number_text.h"
#include "text/numeric_reader.h"

#include <cmath>
#include <limits>
#include <optional>

namespace calculator {

namespace {

constexpr TextView kOrder = u"^/*-+";

/// Last position, counted from 1, at which the space after a right operand is found: the search
/// counts in 16 bits.
constexpr std::size_t kLastPosition = std::numeric_limits<std::int16_t>::max();

/// An operator with its two spaces.
constexpr std::size_t kWidth = 3;

std::optional<double> compute(char16_t op, double left, double right) {
    double value = 0;
    switch (op) {
    case u'^':
        value = std::pow(left, right);
        break;
    case u'/':
        value = left / right;
        break;
    case u'*':
        value = left * right;
        break;
    case u'-':
        value = left - right;
        break;
    default:
        value = left + right;
    }
    const bool sound = std::isfinite(left) && std::isfinite(right) && std::isfinite(value);
    return sound ? std::optional(value) : std::nullopt;
}

/// Position of the space before the next `op` from `from` on.
std::size_t findOperator(TextView text, char16_t op, std::size_t from) {
    for (std::size_t at = text.find(op, from + 1); at != Text::npos; at = text.find(op, at + 1)) {
        if (text[at - 1] == u' ' && at + 1 < text.size() && text[at + 1] == u' ')
            return at - 1;
    }
    return Text::npos;
}

/// One operator's way through the text: `done` is what lies behind, its reductions made, and
/// text[next...] what lies ahead; together they are the expression as it stands. A value holds no
/// space, so it brings forth no operator, neither this one behind the walk nor an earlier one
/// anywhere: going on gives what starting again after each reduction gives.
class Pass {
public:
    Pass(Text& text, char16_t op, Counters& counters, const Hooks& hooks)
        : text_(text), op_(op), counters_(counters), hooks_(hooks) {}

    Progress run() {
        // The first place looked at is the third: an operator before it has no left operand.
        std::size_t found = findOperator(text_, op_, 2);
        if (found == Text::npos)
            return Progress::Done;
        done_.reserve(text_.size());
        Progress progress = Progress::Done;
        while (found != Text::npos && progress == Progress::Done) {
            done_.append(text_, next_, found - next_);
            next_ = found;
            progress = reduce();
            if (progress != Progress::Done || counters_.nboperateurs < 1)
                break;
            found = findOperator(text_, op_, next_);
        }
        done_.append(text_, next_);
        text_ = std::move(done_);
        return progress;
    }

private:
    /// Calculates the operator that `next_` stands before.
    Progress reduce() {
        if (isCancelled(hooks_))
            return Progress::Cancelled;
        if (done_.size() < 2)
            return Progress::Fault;
        const std::size_t before = done_.rfind(u' ', done_.size() - 2);
        const std::size_t end = text_.find(u' ', next_ + kWidth + 1);
        if (before == Text::npos || end == Text::npos)
            return Progress::Fault;
        if (done_.size() + (end - next_) >= kLastPosition)
            return Progress::Fault;
        const auto value = compute(
            op_, leftOperand(before + 1),
            text::leadingNumber(TextView(text_).substr(next_ + kWidth, end - next_ - kWidth)));
        if (!value)
            return Progress::Fault;
        done_.resize(before + 1);
        done_ += text::trimmedNumberText(*value);
        next_ = end;
        --counters_.nboperateurs;
        if (hooks_.trace)
            hooks_.trace("calculoperateurs", done_ + text_.substr(next_));
        return Progress::Done;
    }

    /// A "(" in front is passed over; it is lost with the operand.
    double leftOperand(std::size_t start) const {
        if (start < done_.size() && done_[start] == u'(')
            ++start;
        return text::leadingNumber(TextView(done_).substr(start));
    }

    Text& text_;
    const char16_t op_;
    Counters& counters_;
    const Hooks& hooks_;
    Text done_;
    std::size_t next_ = 0;
};

} // namespace

Progress calculoperateurs(Text& text, Counters& counters, const Hooks& hooks) {
    if (isCancelled(hooks))
        return Progress::Cancelled;
    text = simplifier(text);
    // A counter that was already used up does not keep the first reduction from being made.
    for (const char16_t op : kOrder) {
        const std::int16_t before = counters.nboperateurs;
        const Progress progress = Pass(text, op, counters, hooks).run();
        const bool reduced = counters.nboperateurs != before;
        if (progress != Progress::Done || (reduced && counters.nboperateurs < 1))
            return progress;
    }
    return Progress::Done;
}

} // namespace calculator
