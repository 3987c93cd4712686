#include "platform/module.h"

#include <windows.h>

namespace platform {

ModuleFunction loadModuleFunction(const char* fileName, const char* symbol) {
    // The program's own directory and the system's, nothing that the caller's environment names.
    const HMODULE module = LoadLibraryExA(fileName, nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    const FARPROC address = module ? GetProcAddress(module, symbol) : nullptr;
    if (address)
        return {reinterpret_cast<void*>(address), {}};
    return {nullptr, "« " + std::string(fileName) + " » manque, ou n’est pas de la même version"};
}

} // namespace platform
