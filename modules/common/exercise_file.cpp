#include "common/exercise_file.h"

#include "common/entry_file.h"

#include <QFileInfo>

namespace common {

std::optional<std::u16string> readExerciseFile(const QString& path, QString& why) {
    if (!QFileInfo::exists(path)) {
        why = QStringLiteral("il n’est pas dans le dossier du cours.");
        return std::nullopt;
    }
    std::optional<std::u16string> text = readEntryFile(path);
    if (!text)
        why = QStringLiteral("ce n’est pas un fichier d’exercice.");
    return text;
}

} // namespace common
