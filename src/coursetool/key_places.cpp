#include "coursetool/key_places.h"

namespace coursetool {

void KeyPlaces::take(const jet::Value& number, const Place& place, Report& report) {
    const auto key = number.integer();
    if (!key)
        return;
    const auto [known, isNew] = places_.try_emplace(*key, place);
    if (!isNew)
        report.fault(place, inQuotes(std::string(key_.name) + " = " + std::to_string(*key)) +
                                " est déjà pris par " + known->second.file + ", ligne " +
                                std::to_string(known->second.line) + " : choisir un autre numéro");
}

} // namespace coursetool
