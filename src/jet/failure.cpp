#include "jet/failure.h"

namespace jet {

Failure fileFailure(Failure::Kind kind, const std::filesystem::path& path, const char* what) {
    const std::u8string name = path.filename().u8string();
    return {kind, "base de données « " + std::string(name.begin(), name.end()) + " » : " + what};
}

} // namespace jet
