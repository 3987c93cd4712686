// What modules.mjs compares browsers with. Each line is a call of a function that they have too:
// its name, its numbers, and a text behind a bar. What it gives is a line of its own.

#include "browser/exchange.h"

#include <QString>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

extern "C" {
char16_t* room(std::size_t units);
std::size_t simulationOpen(int, std::size_t);
std::size_t simulationAbout(int);
std::size_t simulationControls(int);
void simulationChange(int, int, double);
void simulationSlide(int, int, int);
void simulationType(int, int, std::size_t);
std::size_t frenchNumber(double, int);
std::size_t frenchDigits(double, int);
std::size_t simulationReadings(int);
std::size_t simulationTable(int);
std::size_t simulationLaws(int);
std::size_t simulationTask(int);
std::size_t simulationJudge(int, std::size_t);
std::size_t simulationNumbers(int, int, int);
std::size_t simulationWords(int);
void simulationPull(int, int, double, double);
std::size_t simulationMoment(int);
void simulationPlay(int, int, double, double);
}

namespace {

/// Puts a text where the functions read it; gives its length.
std::size_t put(const std::string& text) {
    const std::u16string units = QString::fromStdString(text).toStdU16String();
    units.copy(room(units.size()), units.size());
    return units.size();
}

void printText(std::size_t units) {
    // Ends of lines in a text are none of the answer.
    std::string text = QString::fromUtf16(room(0), static_cast<qsizetype>(units)).toStdString();
    for (char& c : text)
        c = c == '\n' ? ' ' : c;
    std::puts(text.c_str());
}

void printNumbers(std::size_t count) {
    const auto* numbers = reinterpret_cast<const double*>(room(0));
    for (std::size_t i = 0; i < count; ++i)
        std::printf("%.17g ", numbers[i]);
    std::puts("");
}

void answer(std::string_view name, int module, std::istream& rest, const std::string& text) {
    const auto next = [&rest] {
        double value = 0;
        rest >> value;
        return value;
    };
    const auto whole = [&next] { return static_cast<int>(next()); };
    if (name == "simulationOpen")
        return printText(simulationOpen(module, put(text)));
    if (name == "frenchNumber" || name == "frenchDigits") {
        const double value = next();
        return printText(name == "frenchNumber" ? frenchNumber(value, module)
                                                : frenchDigits(value, module));
    }
    if (name == "simulationJudge")
        return printText(simulationJudge(module, put(text)));
    const struct {
        std::string_view name;
        std::size_t (*ask)(int);
    } texts[] = {
        {"simulationAbout", simulationAbout},       {"simulationControls", simulationControls},
        {"simulationReadings", simulationReadings}, {"simulationTable", simulationTable},
        {"simulationLaws", simulationLaws},         {"simulationTask", simulationTask},
        {"simulationWords", simulationWords},       {"simulationMoment", simulationMoment}};
    for (const auto& one : texts)
        if (name == one.name)
            return printText(one.ask(module));
    const int which = whole();
    if (name == "simulationType") {
        simulationType(module, which, put(text));
        return void(std::puts(""));
    }
    if (name == "simulationNumbers")
        return printNumbers(simulationNumbers(module, which, whole()));
    if (name == "simulationSlide") {
        simulationSlide(module, which, whole());
    } else {
        const double first = next();
        if (name == "simulationChange")
            simulationChange(module, which, first);
        else if (name == "simulationPull")
            simulationPull(module, which, first, next());
        else if (name == "simulationPlay")
            simulationPlay(module, which, first, next());
    }
    std::puts("");
}

} // namespace

int main() {
    for (std::string line; std::getline(std::cin, line);) {
        const std::size_t bar = line.find('|');
        std::string text = bar == line.npos ? "" : line.substr(bar + 1);
        for (char& c : text)
            c = c == '\v' ? '\n' : c; // lines of an exercise
        std::istringstream rest(line.substr(0, bar));
        std::string name;
        int module = 0;
        rest >> name >> module;
        answer(name, module, rest, text);
    }
}
