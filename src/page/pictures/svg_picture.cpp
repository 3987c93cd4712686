#include "page/pictures/svg_picture.h"

#include "page/pictures/bounded_canvas.h"
#include "page/pictures/decoded_cache.h"
#include "page/pictures/drawing_thread.h"
#include "page/pictures/picture_file.h"
#include "page/pictures/svg_guard.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace page {

namespace {

using decoded::Part;

constexpr double kLargestSide = 1e6;

/// The title of the whole stands before what is drawn; those further in tell of parts.
constexpr int kMostBeforeTitle = 20;

// What a drawing takes in memory. Elements were measured to take 400 to 1700 bytes; a point of
// a path is 24 bytes, twice that while there is room for more, and "h1" in the file.
constexpr qint64 kBytesPerElement = 1700;
constexpr qint64 kBytesPerByte = 24;
constexpr qint64 kBytesPerPixel = 4;

QSize wholePixels(QSizeF size) {
    const auto side = [](double length) {
        return static_cast<int>(std::clamp(std::round(length), 1.0, kLargestSide));
    };
    return {side(size.width()), side(size.height())};
}

/// A file that ends where reading it is given up.
class Interruptible : public QBuffer {
public:
    Interruptible(const QByteArray& bytes, const GivenUp& givenUp) : givenUp_(givenUp) {
        setData(bytes);
        open(ReadOnly);
    }

protected:
    qint64 readData(char* to, qint64 count) override {
        return givenUp_ ? -1 : QBuffer::readData(to, std::min(count, kStep));
    }

private:
    static constexpr qint64 kStep = 4096;

    const GivenUp& givenUp_;
};

} // namespace

struct SvgPicture::Drawing {
    QSvgRenderer renderer;
    QSize size;
    qint64 bytes = 0; ///< that it takes

    /// Null when there is nothing to be drawn.
    static std::shared_ptr<Drawing> read(const QByteArray& file, const GivenUp& givenUp) {
        const auto guarded = guardSvg(file);
        if (!guarded || givenUp)
            return nullptr;
        auto drawing = std::make_shared<Drawing>();
        Interruptible source(guarded->source, givenUp);
        QXmlStreamReader reader(&source);
        if (!drawing->renderer.load(&reader))
            return nullptr;
        // Given sizes stretch a drawing like any other picture.
        drawing->renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
        drawing->size = wholePixels(
            guarded->size.isEmpty() ? QSizeF(drawing->renderer.defaultSize()) : guarded->size);
        drawing->bytes = guarded->source.size() * kBytesPerByte +
                         guarded->elements * kBytesPerElement + guarded->pixels * kBytesPerPixel;
        return drawing;
    }
};

std::shared_ptr<const SvgPicture> SvgPicture::read(const QByteArray& bytes) {
    auto picture = std::make_shared<SvgPicture>(bytes);
    const auto size = std::make_shared<QSize>();
    const bool isRead =
        picture->use([size](Drawing& drawing, const GivenUp&) { *size = drawing.size; });
    if (!isRead || !isPictureSize(*size))
        return nullptr;
    picture->size_ = *size;
    return picture;
}

SvgPicture::~SvgPicture() {
    decoded::forget(this);
}

bool SvgPicture::use(const Task& task) const {
    if (isHopeless_)
        return false;
    const auto kept = std::static_pointer_cast<const Drawing>(decoded::find(this, Part::Drawing));
    // Nobody else uses it: a thread that is left behind keeps it, and no other gets it any more.
    const auto drawing =
        std::make_shared<std::shared_ptr<Drawing>>(std::const_pointer_cast<Drawing>(kept));
    isHopeless_ = !doInTime([drawing, task, bytes = bytes_](const GivenUp& givenUp) {
        if (!*drawing)
            *drawing = Drawing::read(bytes, givenUp);
        if (*drawing && !givenUp)
            task(**drawing, givenUp);
    });
    if (isHopeless_) {
        decoded::forget(this);
        return false;
    }
    if (*drawing)
        decoded::keep(this, Part::Drawing, *drawing, (*drawing)->bytes);
    return *drawing != nullptr;
}

QString SvgPicture::description() const {
    QXmlStreamReader reader(bytes_);
    reader.readNextStartElement();
    for (int parts = 0; parts < kMostBeforeTitle && reader.readNextStartElement(); ++parts) {
        if (reader.name() == u"title")
            return reader.readElementText(QXmlStreamReader::SkipChildElements).simplified();
        reader.skipCurrentElement();
    }
    return {};
}

QImage SvgPicture::image(QSize pixels) const {
    if (!isPictureSize(pixels))
        return {};
    if (QImage last = decoded::findPixels(this, Part::Drawn, pixels); !last.isNull())
        return last;
    const auto image = std::make_shared<QImage>();
    const bool isDrawn = use([image, pixels](Drawing& drawing, const GivenUp& givenUp) {
        BoundedCanvas canvas(pixels, givenUp);
        QPainter painter(&canvas);
        drawing.renderer.render(&painter, QRectF(QPointF(), pixels));
        painter.end();
        *image = canvas.image();
    });
    if (!isDrawn)
        return {};
    decoded::keepPixels(this, Part::Drawn, *image);
    return *image;
}

} // namespace page
