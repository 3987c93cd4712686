#include "app/loaded_function.h"

#include "platform/module.h"
#include "platform/terminal.h"

#include <QString>

namespace app {

void* loadedFunction(const char* module, const char* name, const char* lacking) {
    const auto found = platform::loadModuleFunction(module, name);
    if (!found.address)
        platform::tellOnTerminal(QStringLiteral("%1 : %2").arg(
            QString::fromUtf8(lacking), QString::fromStdString(found.reason)));
    return found.address;
}

} // namespace app
