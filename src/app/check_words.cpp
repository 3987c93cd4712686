#include "app/check_words.h"

#include "app/checked_paths.h"
#include "coursetool/paths.h"
#include "coursetool/report.h"
#include "coursetool/tables.h"

namespace app {

namespace {

using authoring::check::CheckFormat;
using coursetool::inQuotes;

/// Codes, one or more in each word, commas between them.
std::set<std::string> codesIn(const std::vector<std::string>& words) {
    std::set<std::string> codes;
    for (const std::string& word : words)
        for (std::size_t start = 0; start < word.size();) {
            const std::size_t end = std::min(word.find(',', start), word.size());
            codes.insert(word.substr(start, end - start));
            start = end + 1;
        }
    return codes;
}

} // namespace

void CheckWords::addTo(CLI::App& command) {
    command.add_option("DOSSIER", course_, "Dossier des sources, ou dossier d’installation")
        ->type_name("");
    command.add_flag("--fix", fix_,
                     "Corrige dans les sources ce qui ne peut vouloir dire qu’une "
                     "chose");
    command.add_flag("--json", json_, "Un objet JSON par ligne");
    command.add_option("--format", format_, "text, json ou sarif (SARIF 2.1.0)")
        ->type_name("FORMAT");
    command.add_option("--ignore", ignored_, "Ne dit rien de ces règles : L103,R301")
        ->type_name("CODES")
        ->expected(1)
        ->take_all();
    command.add_option("--explain", explained_, "Explique une règle ; « toutes » : leur liste")
        ->type_name("CODE");
    command
        .add_option("--drive", drives_,
                    "Donne la lettre de lecteur L à un dossier, plusieurs fois si besoin")
        ->type_name("L=DOSSIER")
        ->expected(1)
        ->take_all();
    command.footer("Exemple : orvalente-cours check mon-cours --fix\n"
                   "Code de sortie : 0 pas de faute, 1 des fautes, 2 mauvais appel, 74 résultat "
                   "impossible à écrire.");
}

CoursCall CheckWords::call() const {
    CheckCall call;
    call.explained = explained_;
    if (!explained_.empty())
        return call;
    if (const auto wrong = notADirectory(course_, "le dossier du cours"))
        return *wrong;
    if (const auto wrong = readDrives(drives_, call.drives))
        return *wrong;
    call.course = coursetool::pathFrom(course_);
    call.fix = fix_;
    call.ignored = codesIn(ignored_);
    if (json_ && !format_.empty() && format_ != "json")
        return WrongCall{"« --json » va sans « --format »"};
    if (json_ || format_ == "json")
        call.format = CheckFormat::Json;
    else if (format_ == "sarif")
        call.format = CheckFormat::Sarif;
    else if (!format_.empty() && format_ != "text")
        return WrongCall{"« --format » est text, json ou sarif, pas " + inQuotes(format_)};
    return call;
}

} // namespace app
