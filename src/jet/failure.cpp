#include "jet/failure.h"

namespace jet {

Failure databaseFailure(Failure::Kind kind, std::string_view name, const char* what) {
    return {kind, "base de données « " + std::string(name) + " » : " + what};
}

} // namespace jet
