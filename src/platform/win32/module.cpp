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

std::filesystem::path directoryOfModule(void (*function)()) {
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH];
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(function), &module) ||
        GetModuleFileNameW(module, path, MAX_PATH) == 0)
        return {};
    return std::filesystem::path(path).parent_path();
}

} // namespace platform
