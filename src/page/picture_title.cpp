#include "page/picture_title.h"

namespace page {

namespace {

/// Longest title that is read out, in UTF-16 units.
constexpr qsizetype kLongestTitle = 500;

QString nameInWords(QString name) {
    name.truncate(name.lastIndexOf(u'.') > 0 ? name.lastIndexOf(u'.') : name.size());
    name.replace(u'-', u' ').replace(u'_', u' ');
    return QStringLiteral("Image %1").arg(name).simplified();
}

} // namespace

QString pictureTitle(const PictureOperation& picture) {
    const QString title = picture.picture ? picture.picture->description() : QString();
    return title.isEmpty() ? nameInWords(picture.name) : title.left(kLongestTitle);
}

} // namespace page
