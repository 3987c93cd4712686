#include "calculator/evaluator.h"

#include "calculator/checks.h"
#include "calculator/functions.h"
#include "calculator/groups.h"
#include "calculator/normalise.h"
#include "calculator/operators.h"

namespace calculator {

namespace {

/// A text that is not done by then never will be.
constexpr int kMostPasses = 100;

/// One evaluation under way: each step works on the text and is told to the trace.
class Run {
public:
    Run(TextView expression, AngleMode angles, const Hooks& hooks)
        : text_(expression), angles_(angles), hooks_(hooks) {}

    Evaluation result() && {
        const ErrorCode error = calculate();
        return {std::move(text_), error};
    }

private:
    ErrorCode calculate() {
        cleanUp();
        if (const ErrorCode error = verifier(text_); error != ErrorCode::None)
            return error;
        if (!count() || !passUntilDone())
            return ErrorCode::Impossible;
        trim();
        return text_.find(u' ') == Text::npos ? ErrorCode::None : ErrorCode::Impossible;
    }

    bool passUntilDone() {
        Text remembered;
        Counters counted;
        for (int pass = 1; pass <= kMostPasses; ++pass) {
            if (text_ == remembered) {
                if (!simplify())
                    return false;
                if (text_ == remembered && counters_ == counted)
                    return false; // every further pass would do the same, up to the last
            }
            remembered = text_;
            counted = counters_;
            if (!functionsAndGroups() || !count())
                return false;
            if (counters_.nbfonctions > 0 || counters_.nbparentheses > 0)
                continue;
            if (!operators() || !count())
                return false;
            if (counters_.nboperateurs < 1)
                return true;
        }
        return false;
    }

    bool functionsAndGroups() {
        if (counters_.nbfonctions > 0) {
            if (!calculfonctions(text_, counters_, angles_))
                return false;
            told("calculfonctions");
            if (!simplify())
                return false;
        }
        if (counters_.nbparentheses > 0) {
            if (calculparentheses(text_, counters_, effort_, hooks_) != Progress::Done)
                return false;
            told("calculparentheses");
        }
        return true;
    }

    bool operators() {
        return counters_.nboperateurs < 1 ||
               calculoperateurs(text_, counters_, hooks_) == Progress::Done;
    }

    bool count() {
        const auto counted = compter(text_);
        counters_ = counted.value_or(Counters{});
        return counted.has_value();
    }

    /// False when the text has been walked over too often.
    bool simplify() {
        cleanUp();
        return effort_.spend(text_.size());
    }

    void cleanUp() {
        text_ = simplifier(text_);
        told("simplifier");
    }

    void trim() {
        const std::size_t first = text_.find_first_not_of(u' ');
        text_.erase(0, first);
        text_.resize(text_.find_last_not_of(u' ') + 1);
    }

    void told(const char* step) const {
        if (hooks_.trace)
            hooks_.trace(step, text_);
    }

    Text text_;
    const AngleMode angles_;
    const Hooks& hooks_;
    Counters counters_;
    Effort effort_;
};

} // namespace

Evaluation Evaluator::evaluer(TextView expression, AngleMode angles) const {
    return Run(expression, angles, hooks_).result();
}

} // namespace calculator
