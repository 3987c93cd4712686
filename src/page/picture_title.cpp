#include "page/picture_title.h"

#include <QXmlStreamReader>

namespace page {

namespace {

/// A title stands before what is drawn: whoever has one has it by this many elements.
constexpr int kMostElements = 20;
/// Longest title that is read out, in UTF-16 units.
constexpr qsizetype kLongestTitle = 500;

QString titleInside(const QByteArray& svg) {
    QXmlStreamReader reader(svg);
    for (int elements = 0; elements < kMostElements && !reader.atEnd();)
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            ++elements;
            if (reader.name() == u"title")
                return reader.readElementText(QXmlStreamReader::SkipChildElements)
                    .simplified()
                    .left(kLongestTitle);
        }
    return {};
}

QString nameInWords(QString name) {
    name.truncate(name.lastIndexOf(u'.') > 0 ? name.lastIndexOf(u'.') : name.size());
    name.replace(u'-', u' ').replace(u'_', u' ');
    return QStringLiteral("Image %1").arg(name).simplified();
}

} // namespace

QString pictureTitle(const PictureOperation& picture) {
    QString title;
    if (picture.picture && picture.picture->format() == PictureFormat::Svg)
        title = titleInside(picture.picture->bytes());
    return title.isEmpty() ? nameInWords(picture.name) : title;
}

} // namespace page
