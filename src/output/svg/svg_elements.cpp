#include "output/svg/svg_elements.h"

#include "output/svg/svg_text.h"

#include <QBuffer>

#include <algorithm>

namespace output::svg {

namespace {

/// The picture as a file that programs which show SVG can read.
std::pair<QByteArray, QByteArray> file(const page::Picture& picture) {
    switch (picture.format()) {
    case page::PictureFormat::Gif:
        return {"image/gif", picture.bytes()};
    case page::PictureFormat::Jpeg:
        return {"image/jpeg", picture.bytes()};
    case page::PictureFormat::Png:
        return {"image/png", picture.bytes()};
    case page::PictureFormat::Svg:
        return {"image/svg+xml", picture.bytes()};
    case page::PictureFormat::Bmp:
        break;
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    picture.image(picture.size()).save(&png, "PNG");
    return {"image/png", png.data()};
}

} // namespace

QString PictureStore::name(const page::Picture& picture) {
    const auto known = names_.constFind(&picture);
    if (known != names_.constEnd())
        return *known;
    const QString name = store(picture);
    names_.insert(&picture, name);
    return name;
}

QString PictureStore::store(const page::Picture& picture) {
    const auto [type, bytes] = file(picture);
    if (bytes.isEmpty())
        return {};
    // The same file may have been read twice.
    const auto same = byContent_.constFind(bytes);
    if (same != byContent_.constEnd())
        return *same;
    const QString name = form_.idPrefix + QStringLiteral("i%1").arg(byContent_.size() + 1);
    byContent_.insert(bytes, name);
    const QByteArray inlined = form_.inlined && picture.format() == page::PictureFormat::Svg
                                   ? form_.inlined(picture, name)
                                   : QByteArray();
    if (!inlined.isEmpty()) {
        definitions_ += inlined;
        return name;
    }
    markup_.empty("image")
        .with("id", name)
        .with("width", "1")
        .with("height", "1")
        .with("preserveAspectRatio", "none")
        .with(form_.isInPage ? "href" : "xlink:href",
              QString::fromLatin1("data:" + type + ";base64," + bytes.toBase64()))
        .endLine();
    return name;
}

QString ClipStore::reference(const QRectF& area) {
    auto place = std::find(areas_.begin(), areas_.end(), area);
    if (place == areas_.end())
        place = areas_.insert(areas_.end(), area);
    return QStringLiteral("url(#%1c%2)").arg(idPrefix_).arg(place - areas_.begin() + 1);
}

QByteArray ClipStore::definitions() const {
    QByteArray all;
    Markup markup(all);
    for (std::size_t i = 0; i < areas_.size(); ++i)
        markup.open("clipPath")
            .with("id", idPrefix_ + QStringLiteral("c%1").arg(i + 1))
            .empty("rect")
            .with("x", pixels(areas_[i].x()))
            .with("y", pixels(areas_[i].y()))
            .with("width", pixels(areas_[i].width()))
            .with("height", pixels(areas_[i].height()))
            .close()
            .endLine();
    return all;
}

} // namespace output::svg
