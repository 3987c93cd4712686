#include "output/pdf/cairo_pictures.h"

#include "output/pdf/jpeg_header.h"
#include "page/printed_picture.h"

#include <QCryptographicHash>

#include <cstring>

namespace output {

namespace {

void releaseBytes(void* bytes) {
    delete static_cast<QByteArray*>(bytes);
}

void attach(cairo_surface_t* surface, const char* type, const QByteArray& bytes) {
    auto* held = new QByteArray(bytes);
    if (cairo_surface_set_mime_data(
            surface, type, reinterpret_cast<const unsigned char*>(held->constData()),
            static_cast<unsigned long>(held->size()), releaseBytes, held) != CAIRO_STATUS_SUCCESS)
        delete held;
}

/// Stands for a picture whose pixels nobody asks for: the document has them, or takes the file.
/// Where the document has them, `size` is theirs, since cairo scales by what it has stored.
CairoSurface placeholder(QSize size = {1, 1}) {
    return CairoSurface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width(), size.height()));
}

qint64 bytesOf(QSize pixels) {
    return 4 * qint64(pixels.width()) * pixels.height();
}

CairoSurface copyOf(const QImage& image) {
    if (image.isNull())
        return nullptr;
    const bool transparent = image.hasAlphaChannel();
    const QImage source = image.convertToFormat(transparent ? QImage::Format_ARGB32_Premultiplied
                                                            : QImage::Format_RGB32);
    CairoSurface copy(cairo_image_surface_create(
        transparent ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24, source.width(), source.height()));
    if (cairo_surface_status(copy.get()) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    unsigned char* row = cairo_image_surface_get_data(copy.get());
    for (int y = 0; y < source.height(); ++y, row += cairo_image_surface_get_stride(copy.get()))
        std::memcpy(row, source.constScanLine(y), static_cast<std::size_t>(source.width()) * 4);
    cairo_surface_mark_dirty(copy.get());
    return copy;
}

} // namespace

QByteArray CairoPictures::idOf(const std::shared_ptr<const page::Picture>& picture, QSize pixels) {
    Known& known = known_[picture.get()];
    if (known.picture.lock() != picture) {
        known.picture = picture;
        known.id = picture->bytes().isEmpty()
                       ? "nameless " + QByteArray::number(++nameless_)
                       : QCryptographicHash::hash(picture->bytes(), QCryptographicHash::Sha256);
    }
    return known.id + ' ' + QByteArray::number(pixels.width()) + ' ' +
           QByteArray::number(pixels.height());
}

QSize CairoPictures::affordable(QSize wanted, QSize drawn) const {
    const qint64 room = mostPageBytes_ - pageBytes_;
    for (const QSize size : {wanted, wanted.boundedTo(drawn)})
        if (bytesOf(size) <= room)
            return size;
    return {};
}

cairo_surface_t* CairoPictures::surface(const std::shared_ptr<const page::Picture>& picture,
                                        QSize drawn) {
    const auto photograph = picture->format() == page::PictureFormat::Jpeg
                                ? jpegSize(picture->bytes())
                                : std::optional<QSize>();
    const QSize whole = photograph ? *photograph : page::printedPixels(*picture, drawn);
    for (const QSize size : {whole, whole.boundedTo(drawn)})
        if (const auto shown = page_.find(idOf(picture, size)); shown != page_.end())
            return shown->second.get();
    const bool isStored = photograph || written_.contains(idOf(picture, whole));
    const QSize pixels = isStored ? whole : affordable(whole, drawn);
    if (pixels.isEmpty())
        return nullptr;
    const QByteArray id = idOf(picture, pixels);
    CairoSurface made = photograph ? placeholder()
                        : isStored ? placeholder(pixels)
                                   : copyOf(picture->image(pixels));
    if (made && !isStored)
        pageBytes_ += bytesOf(pixels);
    if (made) {
        attach(made.get(), CAIRO_MIME_TYPE_UNIQUE_ID, id);
        if (photograph)
            attach(made.get(), CAIRO_MIME_TYPE_JPEG, picture->bytes());
    }
    return page_.emplace(id, std::move(made)).first->second.get();
}

void CairoPictures::endPage() {
    for (const auto& [id, surface] : page_)
        if (surface)
            written_.insert(id);
    page_.clear();
    pageBytes_ = 0;
}

} // namespace output
