#pragma once

#include <string>
#include <string_view>

namespace jet {

/// Why something could not be done. `sentence` is French, UTF-8, without a final full stop, names
/// the structure at fault ("table « Pages » : la définition, page 17, ...") and is fit to be shown.
struct Failure {
    enum class Kind {
        System,       ///< the operating system refused: no such file, no right, disk full
        NotADatabase, ///< the file is none of ours from its first bytes on
        Unsupported,  ///< a database of a kind that is not read (2007 and later)
        Damaged,      ///< a structure of the file contradicts itself or points outside the file
        NotFound,     ///< no such table, record or column
        Refused       ///< a name or a value that cannot be written
    };
    Kind kind;
    std::string sentence;
};

/// "base de données « name » : ", then what is the matter with it; the name is UTF-8.
Failure databaseFailure(Failure::Kind kind, std::string_view name, const char* what);

} // namespace jet
