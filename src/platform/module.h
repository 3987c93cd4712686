#pragma once

#include <filesystem>
#include <string>

namespace platform {

/// A function of a module that is installed with the program, or the reason why it is not to be
/// had, as a French clause that names the file at fault.
struct ModuleFunction {
    void* address = nullptr;
    std::string reason;
};

/// Loads the module with this bare file name, for good, and looks `symbol` up. The module is looked
/// for beside the program and where the program was told to look when it was linked.
ModuleFunction loadModuleFunction(const char* fileName, const char* symbol);

/// The directory of the program or module that this function is part of; empty when the system does
/// not tell.
std::filesystem::path directoryOfModule(void (*function)());

} // namespace platform
