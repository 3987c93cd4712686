#pragma once

namespace app {

/// The function of that name in a module beside the program; null when it cannot be loaded, which
/// is then said on standard error after `lacking`, a French clause. To be called once for each: a
/// module that is missing takes time, and complains.
void* loadedFunction(const char* module, const char* name, const char* lacking);

} // namespace app
