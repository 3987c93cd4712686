#include "files/cause.h"

#include <cerrno>

namespace files {

namespace {

struct Words {
    std::errc code;
    const char* words;
};

constexpr Words kWords[] = {
    {std::errc::no_space_on_device, "le disque est plein"},
    {std::errc::permission_denied, "les droits d’accès l’interdisent"},
    {std::errc::operation_not_permitted, "les droits d’accès l’interdisent"},
    {std::errc::read_only_file_system, "le disque est protégé en écriture"},
    {std::errc::no_such_file_or_directory, "le fichier ou son dossier n’existe pas"},
    {std::errc::file_exists, "un fichier de ce nom existe déjà"},
    {std::errc::is_a_directory, "un dossier porte ce nom"},
    {std::errc::not_a_directory, "un fichier tient la place d’un dossier"},
    {std::errc::directory_not_empty, "le dossier n’est pas vide"},
    {std::errc::filename_too_long, "le nom est trop long"},
    {std::errc::file_too_large, "le fichier deviendrait trop grand"},
    {std::errc::too_many_symbolic_link_levels, "un lien y mène ailleurs, ou tourne en rond"},
    {std::errc::io_error, "le disque ne répond pas comme il faut"},
    {std::errc::device_or_resource_busy, "un autre programme s’en sert"},
    {std::errc::text_file_busy, "un autre programme s’en sert"},
    {std::errc::resource_unavailable_try_again, "un autre programme s’en sert"},
    {std::errc::too_many_files_open, "trop de fichiers sont ouverts"},
    {std::errc::too_many_files_open_in_system, "trop de fichiers sont ouverts"},
    {std::errc::not_enough_memory, "la mémoire manque"},
    {std::errc::broken_pipe, "personne ne lit la suite"},
    {std::errc::not_supported, "ce n’est pas un fichier ordinaire"},
};

} // namespace

std::string causeOf(std::error_code error) {
    for (const auto& [code, words] : kWords)
        if (error == code)
            return words;
#ifdef EDQUOT
    if (error == std::error_code(EDQUOT, std::system_category()))
        return "la part de disque accordée est épuisée";
#endif
    return "le système a refusé (erreur " + std::to_string(error.value()) + ")";
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

} // namespace files
