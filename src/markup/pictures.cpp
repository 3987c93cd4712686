#include "markup/arguments.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "page/twips.h"
#include "platform/file_names.h"
#include "text/rounding.h"

namespace markup {

namespace {

constexpr qsizetype kKeywordLength = 3;
constexpr qsizetype kSizedKeywordLength = 5;

enum class Mode { OverText, AboveText, GivenSize };

struct Size {
    double width = 0;
    double height = 0;
};

/// A length of a sized picture in twips; 0, and a failure, when it leaves the 16 bits.
double givenLength(Renderer& renderer, QStringView pixels) {
    std::int16_t twips = 0;
    renderer.store(twips, page::leadingNumber(pixels) * page::kTwipsPerPixel);
    return twips;
}

Size ownSize(const page::Picture* picture) {
    if (!picture)
        return {};
    const QSize pixels = picture->size();
    return {pixels.width() * page::kTwipsPerPixel, pixels.height() * page::kTwipsPerPixel};
}

/// `given` is the size that a sized picture is stretched to.
void chargeimage(Renderer& renderer, const QString& nom, Mode mode, Size given) {
    const QString path = renderer.pictures().locatePicture(nom);
    if (path.isEmpty())
        return;
    // A picture that cannot be read has no size of its own; one of a given size still takes its
    // room.
    const auto picture = renderer.pictures().load(path);
    renderer.check(picture != nullptr, u"l’image ne peut pas être lue");
    const Size size = mode == Mode::GivenSize ? given : ownSize(picture.get());

    page::Surface& surface = renderer.surface();
    surface.setPenX(alignedX(renderer.state(), size.width, surface.penX()));
    if (picture && size.width > 0 && size.height > 0)
        surface.paint(picture, size.width, size.height, platform::lastComponent(nom), false);
    if (mode != Mode::OverText)
        renderer.movePenYBy(size.height);
}

} // namespace

void symbolInLine(Renderer& renderer, QStringView d) {
    const QString key = lastCharacters(d, kKeyLength).toString();
    const auto picture = renderer.pictures().symbol(key);
    if (!picture)
        return;
    const Size size = ownSize(picture.get());
    page::Surface& surface = renderer.surface();
    surface.paint(picture, size.width, size.height, key, true);
    surface.setPenX(surface.penX() + size.width);
}

void pictureOverText(Renderer& renderer, QStringView d) {
    chargeimage(renderer, d.sliced(kKeywordLength).toString(), Mode::OverText, {});
}

void pictureAboveText(Renderer& renderer, QStringView d) {
    chargeimage(renderer, d.sliced(kKeywordLength).toString(), Mode::AboveText, {});
}

void pictureOfGivenSize(Renderer& renderer, QStringView d) {
    const QStringView argument = d.sliced(kSizedKeywordLength);
    const QStringView digits = lastCharacters(argument, kPictureSizeLength);
    const Size given{
        givenLength(renderer, digits.first(qMin(digits.size(), kPictureSizeLength / 2))),
        givenLength(renderer, lastCharacters(digits, kPictureSizeLength / 2))};
    chargeimage(renderer, argument.chopped(digits.size()).toString(), Mode::GivenSize, given);
}

} // namespace markup
