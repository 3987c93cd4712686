#include "markup/control_names.h"

namespace markup {

QString surfaceName(page::SurfaceId surface) {
    switch (surface) {
    case page::SurfaceId::PictureTexte:
        return QStringLiteral("PictureTEXTE");
    case page::SurfaceId::PictureIllus:
        return QStringLiteral("PICTUREILLUS");
    case page::SurfaceId::Titre:
        return QStringLiteral("titre");
    case page::SurfaceId::Picture2:
        return QStringLiteral("Picture2");
    case page::SurfaceId::Printer:
        return QStringLiteral("printer");
    }
    return {};
}

QString controlName(page::LinkControl control) {
    return control == page::LinkControl::Labelien ? QStringLiteral("Labelien")
                                                  : QStringLiteral("Imagelien");
}

QString controlName(page::FieldControl control) {
    switch (control) {
    case page::FieldControl::Option1:
        return QStringLiteral("Option1");
    case page::FieldControl::Check1:
        return QStringLiteral("Check1");
    case page::FieldControl::Text1:
        return QStringLiteral("Text1");
    case page::FieldControl::Labelien:
        return QStringLiteral("Labelien");
    case page::FieldControl::Image1:
        return QStringLiteral("Image1");
    case page::FieldControl::Icovideo:
        return QStringLiteral("Icovideo");
    }
    return {};
}

} // namespace markup
