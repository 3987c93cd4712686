#include "app/drawing_environment.h"
#include "coursetool/tool_pictures.h"
#include "look/field_pictures.h"
#include "platform/module.h"
#include "publish/course_site.h"

namespace {

/// They stand beside this module.
publish::BrowserPrograms browserPrograms() {
    const std::filesystem::path directory = platform::directoryOfModule([] {});
    return {directory / ORVALENTE_WEB_PROGRAM, directory / ORVALENTE_WEB_SIMULATIONS};
}

} // namespace

extern "C" Q_DECL_EXPORT void orvalentePublish(int& argc, char** argv,
                                               const publish::PublishRequest& request,
                                               coursetool::Report& report) {
    const app::DrawingEnvironment environment(argc, argv);
    coursetool::ToolPictures pictures(request.course, request.drives, report);
    publish::publishCourse(request, browserPrograms(), environment.fonts, pictures,
                           look::fieldPictures(), report);
}
