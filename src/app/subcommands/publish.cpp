#include "publish/publish.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "platform/module.h"

namespace app {

namespace {

struct Publish : Subcommand {
    std::string course;
    std::string output;
    std::vector<std::string> drives;
    publish::PublishRequest request;

    Publish() : Subcommand("publish", "Publie un cours en site web, à ouvrir dans un navigateur") {}

    void declare(Options& options) override {
        options.course(course);
        options.output("SITE", output, "Dossier du site à écrire ; fichier .zip avec --scorm");
        options.flag("--scorm", request.scorm, "Un paquet SCORM 1.2, pour une plateforme");
        options.drives(drives);
        options.example("orvalente-cours publish installation -o site");
        options.example("orvalente-cours publish installation --scorm -o cours.zip");
    }

    Refusal refusal() override {
        if (Refusal wrong = notACourse(course))
            return wrong;
        if (output.empty())
            return "il manque « -o SITE »";
        request.course = pathFrom(course);
        request.output = pathFrom(output);
        return readDrives(drives, request.drives);
    }

    int run(ToolRun& run) override {
        const auto found =
            platform::loadModuleFunction(ORVALENTE_PUBLISH_MODULE, publish::kPublishSymbol);
        if (found.address)
            reinterpret_cast<publish::PublishFunction>(found.address)(run.argc, run.argv, request,
                                                                      run.report);
        else
            run.report.fault({ORVALENTE_PUBLISH_MODULE},
                             "cette partie du programme manque : " + found.reason);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_publish() {
    return std::make_unique<Publish>();
}

} // namespace app
