#include "platform/module.h"

#include <dlfcn.h>

namespace platform {

ModuleFunction loadModuleFunction(const char* fileName, const char* symbol) {
    void* module = dlopen(fileName, RTLD_NOW | RTLD_LOCAL);
    void* address = module ? dlsym(module, symbol) : nullptr;
    if (address)
        return {address, {}};
    // "libmpv.so.2: cannot open shared object file: ...": the file at fault, then English.
    const char* const said = dlerror();
    const std::string words = said ? said : fileName;
    const std::string file = words.substr(0, words.find(": "));
    return {nullptr, "« " + file + " » manque, ou n’est pas de la même version"};
}

} // namespace platform
