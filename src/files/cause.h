#pragma once

#include <string>
#include <system_error>

namespace files {

/// Why the system refused, as the end of a French sentence without its full stop ("le disque est
/// plein"). The system's own words would be in another language; what has no words here is told by
/// its number.
std::string causeOf(std::error_code error);

// What a failed write is called; the cause follows behind a colon.
inline constexpr char kFileNotCreated[] = "le fichier ne peut pas être créé";
inline constexpr char kFileNotWritten[] = "le fichier ne peut pas être écrit";
inline constexpr char kFileNotPutInPlace[] = "le fichier ne peut pas être mis en place";
inline constexpr char kFolderNotCreated[] = "le dossier ne peut pas être créé";

/// What the last call of the system that failed has left behind.
std::error_code lastError();

} // namespace files
