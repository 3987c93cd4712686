#include "platform/error_box_starter.h"

#include "platform/file_names.h"
#include "platform/start_failure.h"

namespace platform {

StartResult ErrorBoxStarter::start(const QString& program, const ProgramVariables& variables) {
    return told(program, starter_.start(program, variables));
}

StartResult ErrorBoxStarter::startMaximized(const QString& program) {
    return told(program, starter_.startMaximized(program));
}

StartResult ErrorBoxStarter::told(const QString& program, const StartResult& result) {
    if (!result.pid) {
        const QString name = lastComponent(program);
        messageBoxes_.ask({name,
                           QStringLiteral("Le programme «\u00A0%1\u00A0» %2")
                               .arg(name, whyNotStarted(result.failure)),
                           Message::Icon::Critical, Message::Buttons::Ok});
    }
    return result;
}

} // namespace platform
