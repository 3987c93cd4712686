#include "page/recording.h"

namespace page {

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

QString linkControlName(LinkControl control) {
    return control == LinkControl::Labelien ? QStringLiteral("Labelien")
                                            : QStringLiteral("Imagelien");
}

QString fieldControlName(FieldControl control) {
    switch (control) {
    case FieldControl::Option1:
        return QStringLiteral("Option1");
    case FieldControl::Check1:
        return QStringLiteral("Check1");
    case FieldControl::Text1:
        return QStringLiteral("Text1");
    case FieldControl::Labelien:
        return QStringLiteral("Labelien");
    case FieldControl::Image1:
        return QStringLiteral("Image1");
    case FieldControl::Icovideo:
        return QStringLiteral("Icovideo");
    }
    return {};
}

} // namespace page
