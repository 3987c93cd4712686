#include "platform/module.h"

#include <dlfcn.h>

namespace platform {

ModuleFunction loadModuleFunction(const char* fileName, const char* symbol) {
    void* module = dlopen(fileName, RTLD_NOW | RTLD_LOCAL);
    void* address = module ? dlsym(module, symbol) : nullptr;
    if (address)
        return {address, {}};
    const char* reason = dlerror();
    return {nullptr, reason ? reason : "dlsym"};
}

} // namespace platform
