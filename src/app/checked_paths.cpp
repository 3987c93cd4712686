#include "app/checked_paths.h"

#include "app/drive_option.h"
#include "coursetool/paths.h"
#include "coursetool/report.h"

namespace app {

namespace fs = std::filesystem;
using coursetool::inQuotes;
using coursetool::pathFrom;

std::optional<WrongCall> notADirectory(const std::string& path, const char* what) {
    std::error_code error;
    if (path.empty())
        return WrongCall{std::string("il manque ") + what};
    if (!fs::is_directory(pathFrom(path), error))
        return WrongCall{inQuotes(path) + " n’est pas un dossier"};
    return std::nullopt;
}

std::optional<WrongCall> notAFile(const std::string& path, const char* what) {
    std::error_code error;
    if (path.empty())
        return WrongCall{std::string("il manque ") + what};
    if (!fs::exists(pathFrom(path), error) || fs::is_directory(pathFrom(path), error))
        return WrongCall{inQuotes(path) + " n’est pas un fichier"};
    return std::nullopt;
}

std::optional<WrongCall> readDrives(const std::vector<std::string>& options,
                                    std::map<char, fs::path>& drives) {
    std::map<char, std::string> named;
    for (const std::string& option : options)
        if (const auto wrong = addDrive(option, named))
            return WrongCall{*wrong};
    for (const auto& [letter, directory] : named)
        drives.insert_or_assign(letter, pathFrom(directory));
    return std::nullopt;
}

} // namespace app
