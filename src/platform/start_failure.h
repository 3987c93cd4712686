#pragma once

#include "platform/processes.h"

namespace platform {

/// The end of a French sentence that begins with the program: "est introuvable dans le dossier du
/// cours.", and so on.
QString whyNotStarted(StartFailure failure);

} // namespace platform
