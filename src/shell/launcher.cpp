#include "shell/launcher.h"

#include "platform/start_failure.h"
#include "shell/status_file.h"
#include "shell/status_place.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace shell {

namespace {

using platform::Answer;
using platform::Message;

struct ModuleProgram {
    int module;
    const char* fileName;
};

constexpr std::array<ModuleProgram, 5> kPrograms = {{
    {2, "Simu21.exe"},
    {7, "SIMU07.EXE"},
    {9, "SIMU09.EXE"},
    {10, "Simu22.exe"},
    {23, "Simu23.exe"},
}};

struct LaunchExercise {
    int code;
    const char* fileName;
};

constexpr std::array<LaunchExercise, 8> kExercises = {{
    {21, "Exercice 01.E24"},
    {22, "Exercice 02.E24"},
    {103, "Exercice 03.E20"},
    {105, "Exercice 05.E20"},
    {233, "Exercice 03.E21"},
    {234, "Exercice 04.E21"},
    {235, "Exercice 05.E21"},
    {236, "Exercice 06.E21"},
}};

/// Program of a module; empty for a module without one.
QString programOf(int module) {
    for (const ModuleProgram& program : kPrograms) {
        if (program.module == module)
            return QString::fromLatin1(program.fileName);
    }
    return {};
}

const QString kRunning = QStringLiteral("OUI");
const QString kNotRunning = QStringLiteral("NON");

std::vector<int> moduleRecords() {
    std::vector<int> records(StatusFile::kModuleRecords);
    std::iota(records.begin(), records.end(), 1);
    return records;
}

/// `text` without the spaces around it; other blanks stay.
QString trimmedOfSpaces(const QString& text) {
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text[first] == u' ')
        ++first;
    while (end > first && text[end - 1] == u' ')
        --end;
    return text.mid(first, end - first);
}

const Message kOtherModuleRuns = {QStringLiteral("Orvalente"),
                                  QStringLiteral("Il y a déjà un module en cours d'exécution.\r\n"
                                                 "Confirmez-vous cette commande ?"),
                                  Message::Icon::Question, Message::Buttons::YesNo};

const Message kNoUpdate = {
    QStringLiteral("Mise à jour impossible"),
    QStringLiteral(
        "Pour effectuer une mise à jour, tous les modules du logiciel doivent être fermés"),
    Message::Icon::Exclamation, Message::Buttons::Ok};

} // namespace

QString programOfCode(std::int16_t code) {
    return programOf(code / 10);
}

QString exerciseOfCode(std::int16_t code) {
    for (const LaunchExercise& exercise : kExercises) {
        if (exercise.code == code)
            return QString::fromLatin1(exercise.fileName);
    }
    return {};
}

Launcher::Launcher(SharedState& state, platform::MessageBoxes& messageBoxes,
                   platform::ProcessStarter& starter, platform::WindowActivator& activator,
                   ReportSink& reports)
    : state_(state), messageBoxes_(messageBoxes), starter_(starter), activator_(activator),
      reports_(reports) {}

void Launcher::queryModuleStatus(std::int16_t& module) const {
    std::vector<int> records = moduleRecords();
    records.insert(records.begin(), module);
    QStringList texts = StatusFile(state_.StatusFilePath).read(records);

    // Only the exact text counts here, while those below are trimmed: meant so.
    if (texts.takeFirst() != kNotRunning) {
        module = -1;
        return;
    }
    module = static_cast<std::int16_t>(
        std::count_if(texts.begin(), texts.end(),
                      [](const QString& text) { return trimmedOfSpaces(text) == kRunning; }));
}

void Launcher::launchModule(std::int16_t code) {
    const auto module = static_cast<std::int16_t>(code / 10);
    state_.ModuleNumber = module;
    if (module == 0)
        return reportUnknown(code);
    // Written before anything else is known, also when nothing is started in the end: meant so.
    StatusFile(state_.StatusFilePath).write(StatusFile::kArgumentRecord, exerciseOfCode(code));
    const QString program = programOfCode(code);
    if (program.isEmpty())
        return reportUnknown(code);

    // The shared variable holds the status from here on; the module's slot keeps its own number.
    queryModuleStatus(state_.ModuleNumber);
    const bool anyRuns = state_.ModuleNumber != 0;
    const bool startedBefore = state_.SiblingProcessIds.valueOr(module, 0) != 0;
    if (anyRuns && !startedBefore && !mayStartBesideOthers())
        return;
    if (!(anyRuns && startedBefore))
        start(module, program);
    else
        activate(module, program);
}

void Launcher::reportUnknown(std::int16_t code) {
    reportFailure(reports_, QStringLiteral("Ce lien désigne un module qu’Orvalente ne connaît pas "
                                           "(code\u00A0%1).")
                                .arg(code, 3, 10, QChar(u'0')));
}

void Launcher::reportHidden(const QString& program) {
    reportFailure(reports_,
                  QStringLiteral("La fenêtre du module «\u00A0%1\u00A0» est introuvable\u00A0; "
                                 "au besoin, relancez Orvalente.")
                      .arg(program));
}

void Launcher::reportLeftBehind(const QString& program) {
    reportFailure(reports_,
                  QStringLiteral("Le module «\u00A0%1\u00A0» est déjà ouvert\u00A0; ce bureau ne "
                                 "laisse pas Orvalente l’amener au premier plan.")
                      .arg(program));
}

bool Launcher::mayStartBesideOthers() const {
    return messageBoxes_.ask(kOtherModuleRuns) == Answer::Yes;
}

void Launcher::start(std::int16_t module, const QString& program) {
    const platform::StartResult started =
        starter_.start(state_.InstallDir + program, statusFileVariable(state_.StatusFilePath));
    if (!started.pid) {
        reportFailure(reports_, QStringLiteral("Le module «\u00A0%1\u00A0» %2")
                                    .arg(program, platform::whyNotStarted(started.failure)));
        return;
    }
    // Systems count processes with at most 32 bits.
    state_.SiblingProcessIds.store(module, static_cast<std::int32_t>(*started.pid));
    activate(module, program);
}

void Launcher::activate(std::int16_t module, const QString& program) {
    const std::int32_t pid = state_.SiblingProcessIds.valueOr(module, 0);
    activator_.activate(static_cast<std::uint32_t>(pid), program);
}

bool Launcher::updateIsPossible() const {
    const QStringList texts = StatusFile(state_.StatusFilePath).read(moduleRecords());
    return std::all_of(texts.begin(), texts.end(),
                       [](const QString& text) { return text == kNotRunning; });
}

bool Launcher::confirmUpdateIsPossible() const {
    const bool possible = updateIsPossible();
    if (!possible)
        messageBoxes_.ask(kNoUpdate);
    return possible;
}

} // namespace shell
