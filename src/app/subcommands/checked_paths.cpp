#include "app/subcommands/checked_paths.h"

#include "app/drive_option.h"
#include "coursetool/paths.h"

namespace app {

namespace fs = std::filesystem;

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
    std::map<char, std::string> named;
    for (const std::string& option : options)
        if (auto wrong = addDrive(option, named))
            return wrong;
    for (const auto& [letter, directory] : named)
        drives.insert_or_assign(letter, pathFrom(directory));
    return std::nullopt;
}

} // namespace app
