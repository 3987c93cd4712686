#include "authoring/compiled.h"

#include <algorithm>

namespace authoring {

int CompiledText::lineOf(int compiledLine) const {
    if (markdownLines.empty())
        return 1;
    const int last = static_cast<int>(markdownLines.size());
    return markdownLines[static_cast<std::size_t>(std::clamp(compiledLine, 1, last) - 1)];
}

} // namespace authoring
