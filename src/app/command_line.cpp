#include "app/command_line.h"

#include "app/drive_option.h"
#include "look/scale.h"

namespace app {

namespace {

const char16_t kHelp[] = uR"(Usage : orvalente [options]
Le cours de physique et de chimie.

Options :
  --course DOSSIER   ouvre le cours installé dans DOSSIER
  --drive L=DOSSIER  donne la lettre de lecteur L à DOSSIER (plusieurs fois si besoin)
  --scale F          agrandit tout F fois (de 1 à 4), ou « auto » selon l’écran
  --author           permet de retoucher les questions des tests
  --help             affiche cette aide
  --version          affiche la version
)";

/// The value of an option: after "=" or the next argument.
class Arguments {
public:
    explicit Arguments(const QStringList& arguments) : rest_(arguments.mid(1)) {}

    bool isEmpty() const { return rest_.isEmpty(); }

    /// Takes the next option; its value, when it stands behind "=", waits for takeValue().
    QString takeOption() {
        QString option = rest_.takeFirst();
        value_.reset();
        const qsizetype equals = option.indexOf(u'=');
        if (option.startsWith(u"--") && equals > 0) {
            value_ = option.mid(equals + 1);
            option.truncate(equals);
        }
        return option;
    }

    std::optional<QString> takeValue() {
        if (!value_ && !rest_.isEmpty())
            value_ = rest_.takeFirst();
        return value_;
    }

private:
    QStringList rest_;
    std::optional<QString> value_;
};

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

void readValue(CommandLine& line, const QString& option, const QString& value) {
    if (option == u"--course") {
        line.course = value;
    } else if (option == u"--preview") {
        line.preview = value;
    } else if (option == u"--scale") {
        readScale(line, value);
    } else {
        std::map<char, std::string> named;
        if (const auto wrong = addDrive(value.toStdString(), named))
            refuse(line, QString::fromStdString(*wrong));
        for (const auto& [letter, directory] : named)
            line.drives.insert_or_assign(QLatin1Char(letter), QString::fromStdString(directory));
    }
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    Arguments rest(arguments);
    while (!rest.isEmpty() && !line.message) {
        const QString option = rest.takeOption();
        if (option == u"--help" || option == u"-h") {
            line.message = QString::fromUtf16(kHelp);
        } else if (option == u"--version") {
            line.message = QStringLiteral("Orvalente " ORVALENTE_VERSION "\n");
        } else if (option == u"--author") {
            line.author = true;
        } else if (option != u"--course" && option != u"--drive" && option != u"--scale" &&
                   option != u"--preview") {
            refuse(line, QStringLiteral("option inconnue « %1 »").arg(option));
        } else if (const auto value = rest.takeValue(); value && !value->isEmpty()) {
            readValue(line, option, *value);
        } else {
            refuse(line, QStringLiteral("il manque une valeur après %1").arg(option));
        }
    }
    return line;
}

} // namespace app
