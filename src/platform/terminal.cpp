#include "platform/terminal.h"

#include "text/utf8.h"

#include <cstdio>

namespace platform {

void tellOnTerminal(const QString& sentence) {
    std::fprintf(stderr, "orvalente : %s\n", text::plainLine(sentence.toStdString()).c_str());
}

} // namespace platform
