// Keypad expressions per second beside an expression parser that is used as its manual advises: one
// object, the expression set anew, evaluated once. Then how the time grows with chains and groups.

#include "calculator/evaluator.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

struct Expression {
    const char16_t* typed;
    const char* forThePeer;
};

// 5 to 15 tokens, as pupils type them.
constexpr std::array kExpressions = {
    Expression{u"2 + 3 * 4", "2+3*4"},
    Expression{u"1.5E-3 / 4.2 * 9.81", "1.5E-3/4.2*9.81"},
    Expression{u"2 * sin 30 + 1.5E-3", "2*sin(30)+1.5E-3"},
    Expression{u"(1 + 2) * 3 - 4 / 5", "(1+2)*3-4/5"},
    Expression{u"SQR (3 ^ 2 + 4 ^ 2)", "sqrt(3^2+4^2)"},
    Expression{u"6.67E-11 * 5.97E24 / 6.38E6 ^ 2", "6.67E-11*5.97E24/6.38E6^2"},
    Expression{u"3.14159265358979 * 2.5 ^ 2 / 4", "3.14159265358979*2.5^2/4"},
    Expression{u"1 / (1 / 220 + 1 / 330 + 1 / 470)", "1/(1/220+1/330+1/470)"},
    Expression{u"invSIN (.75 / 1.33 * sin .5)", "asin(.75/1.33*sin(.5))"},
    Expression{u"exp -1.5 * cos (2 * 3 + 1)", "exp(-1.5)*cos(2*3+1)"},
};

constexpr auto kAngles = calculator::AngleMode::Radians;

void calculatorExpressions(benchmark::State& state) {
    const calculator::Evaluator evaluator;
    for (auto _ : state) {
        for (const Expression& expression : kExpressions)
            benchmark::DoNotOptimize(evaluator.evaluer(expression.typed, kAngles));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kExpressions.size()));
}
BENCHMARK(calculatorExpressions);

void peerExpressions(benchmark::State& state) {
    mu::Parser parser;
    for (auto _ : state) {
        for (const Expression& expression : kExpressions) {
            parser.SetExpr(expression.forThePeer);
            benchmark::DoNotOptimize(parser.Eval());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(kExpressions.size()));
}
BENCHMARK(peerExpressions);

void evaluate(benchmark::State& state, const std::u16string& text) {
    const calculator::Evaluator evaluator;
    if (evaluator.evaluer(text, kAngles).error != calculator::ErrorCode::None) {
        state.SkipWithError("the expression does not evaluate");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(evaluator.evaluer(text, kAngles));
    state.SetComplexityN(state.range(0));
}

/// Numbers joined by all operators in turn.
void chain(benchmark::State& state) {
    constexpr const char16_t* kLinks[] = {u"+1.5", u"*1.25", u"-2.5", u"/1.5", u"+3^2"};
    std::u16string text = u"1";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += kLinks[i % 5];
    evaluate(state, text);
}
// A link takes 6 to 7 characters; the last count is near the 32,767 that a position can be.
BENCHMARK(chain)->Arg(10)->Arg(100)->Arg(1000)->Arg(4000)->Complexity();

void nestedGroups(benchmark::State& state) {
    std::u16string text = u"1";
    for (int64_t i = 0; i < state.range(0); ++i)
        text = u"(2-" + text + u")";
    evaluate(state, text);
}
BENCHMARK(nestedGroups)->Arg(10)->Arg(100)->Arg(1000);

void functionChain(benchmark::State& state) {
    std::u16string text = u"1";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += u"+sin 2";
    evaluate(state, text);
}
BENCHMARK(functionChain)->Arg(10)->Arg(100)->Arg(1000);

} // namespace

BENCHMARK_MAIN();
