#include "app/command_line.h"

#include "app/drive_option.h"
#include "look/scale.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <vector>

namespace app {

namespace {

void refuse(CommandLine& line, const QString& what) {
    line.message = QStringLiteral("orvalente : ") + what +
                   QStringLiteral(" ; « orvalente --help » montre les options.");
    line.isError = true;
}

void readScale(CommandLine& line, const QString& value) {
    if (value == u"auto") {
        line.scaleAuto = true;
        return;
    }
    bool isNumber = false;
    const double scale = QString(value).replace(u',', u'.').toDouble(&isNumber);
    if (!isNumber || scale < look::kSmallestScale || scale > look::kLargestScale)
        refuse(line,
               QStringLiteral("l’échelle va de 1 à 4, ou « auto » (et non « %1 »)").arg(value));
    else
        line.scale = scale;
}

void readDrives(CommandLine& line, const std::vector<std::string>& options) {
    std::map<char, std::string> named;
    for (const std::string& option : options)
        if (const auto wrong = addDrive(option, named))
            return refuse(line, QString::fromStdString(*wrong));
    for (const auto& [letter, directory] : named)
        line.drives.insert_or_assign(QLatin1Char(letter), QString::fromStdString(directory));
}

/// The options as the library reads them. Of those that are repeated the last one counts.
class Options {
public:
    explicit Options(CommandLine& line)
        : parser_("Le cours de physique et de chimie.", "orvalente") {
        parser_.get_formatter()->label("OPTIONS", "options");
        parser_.get_formatter()->label("Usage", "Usage ");
        parser_.option_defaults()->group("Options");
        option("--course", course_, "DOSSIER", "ouvre le cours installé dans DOSSIER");
        parser_
            .add_option("--drive", drives_,
                        "donne la lettre de lecteur L à DOSSIER, plusieurs "
                        "fois si besoin")
            ->type_name("L=DOSSIER")
            ->expected(1)
            ->take_all();
        option("--scale", scale_, "F",
               "agrandit tout F fois (de 1 à 4), ou « auto » selon l’écran");
        // The tool's own, with which it starts the shell on sources.
        option("--preview", preview_, "DOSSIER", "")->group("");
        parser_.add_flag("--author", line.author, "permet de retoucher les questions des tests");
        parser_.set_help_flag("-h,--help", "affiche cette aide");
        parser_.set_version_flag("--version", "Orvalente " ORVALENTE_VERSION, "affiche la version");
    }

    void read(std::vector<std::string> words, CommandLine& line) {
        std::reverse(words.begin(), words.end()); // as the library takes them
        try {
            parser_.parse(std::move(words));
        } catch (const CLI::CallForHelp&) {
            line.message = QString::fromStdString(parser_.help());
        } catch (const CLI::CallForVersion&) {
            line.message = QString::fromStdString(parser_.version() + '\n');
        } catch (const CLI::ParseError& error) {
            refuse(line, sentence(error));
        }
        if (!line.message)
            readValues(line);
    }

private:
    CLI::Option* option(const char* name, std::string& value, const char* kind,
                        const char* description) {
        return parser_.add_option(name, value, description)->type_name(kind)->take_last();
    }

    /// The library speaks English.
    QString sentence(const CLI::ParseError& error) const {
        if (const std::vector<std::string> unknown = parser_.remaining();
            dynamic_cast<const CLI::ExtrasError*>(&error) && !unknown.empty())
            return QStringLiteral("option inconnue « %1 »")
                .arg(QString::fromStdString(unknown.front()));
        const std::string what = error.what();
        return QStringLiteral("il manque une valeur après %1")
            .arg(QString::fromStdString(what.substr(0, what.find_first_of(": "))));
    }

    void readValues(CommandLine& line) const {
        for (const char* name : {"--course", "--preview", "--scale"})
            if (const CLI::Option* given = parser_.get_option(name);
                given->count() > 0 && given->results().back().empty())
                return refuse(
                    line, QStringLiteral("il manque une valeur après %1").arg(QLatin1String(name)));
        if (!course_.empty())
            line.course = QString::fromStdString(course_);
        if (!preview_.empty())
            line.preview = QString::fromStdString(preview_);
        if (!scale_.empty())
            readScale(line, QString::fromStdString(scale_));
        if (!line.message)
            readDrives(line, drives_);
    }

    CLI::App parser_;
    std::string course_;
    std::string preview_;
    std::string scale_;
    std::vector<std::string> drives_;
};

} // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    std::vector<std::string> words;
    for (const QString& argument : arguments.mid(1))
        words.push_back(argument.toStdString());
    Options(line).read(std::move(words), line);
    return line;
}

} // namespace app
