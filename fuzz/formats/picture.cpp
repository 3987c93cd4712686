// Picture files of a course, through whatever reads them, drawn in their own size and in another.

#include "formats/all.h"
#include "output/pdf/jpeg_header.h"
#include "page/pictures/picture_file.h"

namespace fuzz {

namespace {

using namespace std::literals;

/// Files may say any size within the bounds of pictures; drawing it at each turn would be all that
/// the time goes into.
constexpr int kMostDrawnPixels = 400'000;

void drawAs(const page::Picture& picture, QSize size) {
    const QImage image = picture.image(size);
    require(image.isNull() || image.size() == size, "a picture is drawn as large as asked for");
}

void readOne(Input input) {
    const QByteArray bytes(reinterpret_cast<const char*>(input.data()),
                           static_cast<qsizetype>(input.size()));
    output::jpegSize(bytes);
    const auto picture = page::pictureFrom(bytes);
    if (!picture)
        return;
    const QSize size = picture->size();
    require(page::isPictureSize(size), "a picture is within the bounds of pictures");
    picture->description();
    drawAs(*picture, QSize(37, 21));
    if (qint64(size.width()) * size.height() <= kMostDrawnPixels)
        drawAs(*picture, size);
}

} // namespace

const Format kPicture{
    "picture",
    readOne,
    {{"fuzz/corpus/picture", ""},
     {"docs/gallery", "C.png"},
     {"src/coursedata/symbols", "-lampe.svg"},
     {"src/coursetool/template/files", ".svg"}},
    {"\xFF\xD8\xFF"sv,
     "\xFF\xC0\0\x11\x08"sv,
     "\xFF\xC2"sv,
     "\xFF\xDA"sv,
     "\xFF\xC4"sv,
     "\xFF\xDD"sv,
     "IHDR"sv,
     "IDAT"sv,
     "PLTE"sv,
     "tRNS"sv,
     "iCCP"sv,
     "acTL"sv,
     "GIF87a"sv,
     "!\xF9\x04"sv,
     ","sv,
     "BM"sv,
     "<svg "sv,
     "<use xlink:href=\"#a\"/>"sv,
     "<g id=\"a\">"sv,
     "</g>"sv,
     "<text>"sv,
     "<style>"sv,
     "<image "sv,
     "xlink:href=\"data:image/png;base64,"sv,
     "<!DOCTYPE"sv,
     "<!ENTITY a \"b\">"sv,
     "&a;"sv,
     "1e309"sv,
     "-1"sv,
     "transform=\"scale(1e9)\""sv,
     "viewBox=\"0 0 0 0\""sv,
     "<path d=\"M0 0a1 1 0 0 1 "sv,
     "<linearGradient id=\"a\" xlink:href=\"#a\"/>"sv,
     "<pattern id=\"a\" fill=\"url(#a)\">"sv,
     "<mask id=\"a\">"sv,
     "stroke-dasharray=\"1e-9\""sv,
     "width=\"100000\""sv},
    32 * 1024,
};

} // namespace fuzz
