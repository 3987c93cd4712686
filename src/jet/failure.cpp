#include "jet/failure.h"

#include "files/cause.h"

namespace jet {

Failure fileFailure(Failure::Kind kind, const std::filesystem::path& path, const char* what) {
    const std::u8string name = path.filename().u8string();
    return {kind, "base de données « " + std::string(name.begin(), name.end()) + " » : " + what};
}

Failure fileFailure(const std::filesystem::path& path, const char* what, std::error_code error) {
    Failure failure = fileFailure(Failure::Kind::System, path, what);
    if (error)
        failure.sentence += " : " + files::causeOf(error);
    return failure;
}

} // namespace jet
