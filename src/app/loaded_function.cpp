#include "app/loaded_function.h"

#include "platform/module.h"

#include <cstdio>

namespace app {

void* loadedFunction(const char* module, const char* name, const char* lacking) {
    const auto found = platform::loadModuleFunction(module, name);
    if (!found.address)
        std::fprintf(stderr, "orvalente : %s : %s.\n", lacking, found.reason.c_str());
    return found.address;
}

} // namespace app
