// What flights.mjs compares browsers with: each line of numbers is a launch, answered by its
// flight; each "= " line is a number, answered by what the windows show of it.

#include "common/french_number.h"
#include "projectile/flight.h"

#include <array>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

namespace {

using namespace projectile;

constexpr int kParts = 12;

void print(double value) {
    std::printf("%.17g ", value);
}

void answerFlight(std::istream& numbers) {
    Launch launch;
    for (const Quantity& one : kQuantities)
        numbers >> launch.*one.value;
    int drag = 0;
    numbers >> drag;
    launch.drag = static_cast<Drag>(drag);
    const Flight flight(launch);
    for (const double value : {flight.duration(), flight.range(), flight.apex().x, flight.apex().y,
                               flight.landing().speed(), flight.start().y})
        print(value);
    for (int i = 0; i <= kParts; ++i) {
        const Moment moment = flight.at(flight.duration() * i / kParts);
        const Energies energies = flight.energies(moment);
        for (const double value : {moment.t, moment.x, moment.y, moment.vx, moment.vy,
                                   energies.kinetic, energies.potential})
            print(value);
    }
    std::puts("");
}

void answerNumber(std::istream& numbers) {
    double value = 0;
    int decimals = 0;
    numbers >> value >> decimals;
    std::printf("%s|%s\n", qPrintable(common::frenchNumber(value, decimals)),
                qPrintable(common::frenchDigits(value, decimals + 1)));
}

} // namespace

int main() {
    for (std::string line; std::getline(std::cin, line);) {
        const bool isNumber = line.starts_with("= ");
        std::istringstream numbers(isNumber ? line.substr(2) : line);
        isNumber ? answerNumber(numbers) : answerFlight(numbers);
    }
}
