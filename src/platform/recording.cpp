#include "platform/recording.h"

namespace platform {

QString surfaceName(SurfaceId id) {
    switch (id) {
    case SurfaceId::PictureTexte:
        return QStringLiteral("PictureTEXTE");
    case SurfaceId::PictureIllus:
        return QStringLiteral("PICTUREILLUS");
    case SurfaceId::Titre:
        return QStringLiteral("titre");
    case SurfaceId::Picture2:
        return QStringLiteral("Picture2");
    case SurfaceId::Printer:
        return QStringLiteral("printer");
    }
    return {};
}

} // namespace platform
