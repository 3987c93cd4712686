#include "look/field_pictures.h"

#include "page/pictures/picture_file.h"

// Resources of a static library are found only after this, which no namespace may hold.
static void initLookResources() {
    Q_INIT_RESOURCE(look);
}

namespace look {

page::FieldPictures fieldPictures() {
    initLookResources();
    const auto drawing = [](const char* name) {
        return page::loadPicture(QStringLiteral(":/look/") + QLatin1String(name));
    };
    return {drawing("fields/option.svg"), drawing("fields/check.svg"), drawing("icons/link.svg"),
            drawing("icons/video.svg")};
}

} // namespace look
