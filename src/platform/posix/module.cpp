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

std::filesystem::path directoryOfModule(void (*function)()) {
    Dl_info found{};
    if (dladdr(reinterpret_cast<void*>(function), &found) == 0 || !found.dli_fname)
        return {};
    std::error_code error;
    return std::filesystem::canonical(found.dli_fname, error).parent_path();
}

} // namespace platform
