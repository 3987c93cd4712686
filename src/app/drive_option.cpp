#include "app/drive_option.h"

namespace app {

std::optional<std::string> addDrive(std::string_view option, std::map<char, std::string>& drives) {
    const bool hasForm = option.size() >= 3 && option[1] == '=';
    const char letter = hasForm ? static_cast<char>(option[0] & ~('a' - 'A')) : '\0';
    if (letter < 'A' || letter > 'Z')
        return "« " + std::string(option) + " » n’est pas de la forme L=DOSSIER";
    drives.insert_or_assign(letter, option.substr(2));
    return std::nullopt;
}

} // namespace app
