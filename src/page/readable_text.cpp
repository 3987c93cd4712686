#include "page/readable_text.h"

#include "page/readable_page.h"

namespace page {

QString readableText(const Recording& recording, SurfaceId surface) {
    return ReadablePage(recording, surface).text();
}

} // namespace page
