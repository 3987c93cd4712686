#include "app/subcommands/checked_paths.h"

namespace app {

namespace {

namespace fs = std::filesystem;

/// Reads "L=DIR"; false when it is not of this form.
bool addDrive(const std::string& option, std::map<char, fs::path>& drives) {
    if (option.size() < 3 || option[1] != '=')
        return false;
    const char letter = static_cast<char>(option[0] & ~('a' - 'A'));
    if (letter < 'A' || letter > 'Z')
        return false;
    drives.insert_or_assign(letter, pathFrom(option.substr(2)));
    return true;
}

} // namespace

Refusal notADirectory(const std::string& path, const char* what) {
    std::error_code error;
    if (path.empty())
        return std::string("il manque ") + what;
    if (!fs::is_directory(pathFrom(path), error))
        return inQuotes(path) + " n’est pas un dossier";
    return std::nullopt;
}

Refusal notACourse(const std::string& path) {
    return notADirectory(path, "le dossier d’installation");
}

Refusal notAFile(const std::string& path, const char* what) {
    std::error_code error;
    if (path.empty())
        return std::string("il manque ") + what;
    if (!fs::exists(pathFrom(path), error) || fs::is_directory(pathFrom(path), error))
        return inQuotes(path) + " n’est pas un fichier";
    return std::nullopt;
}

Refusal readDrives(const std::vector<std::string>& options, std::map<char, fs::path>& drives) {
    for (const std::string& option : options)
        if (!addDrive(option, drives))
            return inQuotes(option) + " n’est pas de la forme L=DOSSIER";
    return std::nullopt;
}

} // namespace app
