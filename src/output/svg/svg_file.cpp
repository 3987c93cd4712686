#include "output/svg/svg_file.h"

#include "output/svg/svg_text.h"
#include "page/ink_area.h"
#include "page/masked_pictures.h"
#include "page/multiply_inks.h"
#include "page/twips.h"

#include <QBuffer>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace output {

namespace {

using svg::appendEscaped;
using svg::colour;
using svg::pixels;

/// Places further out are on no sheet, and their numbers would only be long.
constexpr double kFarTwips = 1e6 * page::kTwipsPerPixel;

/// Crisp lines and fills as on screen; text as wide as it was measured, with every blank.
constexpr char kStyle[] =
    "<style>text{white-space:pre;font-kerning:none;font-variant-ligatures:none}"
    "rect,line{shape-rendering:crispEdges}.m{mix-blend-mode:multiply}</style>\n";

template <class... Values>
bool near(Values... values) {
    return ((std::abs(values) < kFarTwips) && ...);
}

double wholePixels(double twips) {
    return std::round(twips / page::kTwipsPerPixel) * page::kTwipsPerPixel;
}

/// The pictures of a document, each stored once under a name of its own.
class PictureStore {
public:
    /// The name of a picture; empty for one that cannot be stored.
    QByteArray name(const page::Picture& picture) {
        const auto known = names_.constFind(&picture);
        if (known != names_.constEnd())
            return *known;
        const QByteArray name = store(picture);
        names_.insert(&picture, name);
        return name;
    }

    const QByteArray& definitions() const { return definitions_; }

private:
    QByteArray store(const page::Picture& picture) {
        const auto [type, bytes] = file(picture);
        if (bytes.isEmpty())
            return {};
        // The same file may have been read twice.
        const auto same = byContent_.constFind(bytes);
        if (same != byContent_.constEnd())
            return *same;
        const QByteArray name = "i" + QByteArray::number(byContent_.size() + 1);
        definitions_ +=
            "<image id=\"" + name +
            "\" width=\"1\" height=\"1\" preserveAspectRatio=\"none\" xlink:href=\"data:" + type +
            ";base64," + bytes.toBase64() + "\"/>\n";
        byContent_.insert(bytes, name);
        return name;
    }

    /// The picture as a file that programs which show SVG can read.
    static std::pair<QByteArray, QByteArray> file(const page::Picture& picture) {
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

    QHash<const page::Picture*, QByteArray> names_;
    QHash<QByteArray, QByteArray> byContent_;
    QByteArray definitions_;
};

/// The areas that elements are cut at, each defined once.
class ClipStore {
public:
    /// The value of a "clip-path".
    QByteArray reference(const QRectF& area) {
        auto place = std::find(areas_.begin(), areas_.end(), area);
        if (place == areas_.end())
            place = areas_.insert(areas_.end(), area);
        return "url(#c" + QByteArray::number(place - areas_.begin() + 1) + ')';
    }

    QByteArray definitions() const {
        QByteArray all;
        for (std::size_t i = 0; i < areas_.size(); ++i)
            all += "<clipPath id=\"c" + QByteArray::number(i + 1) + "\"><rect x=\"" +
                   pixels(areas_[i].x()) + "\" y=\"" + pixels(areas_[i].y()) + "\" width=\"" +
                   pixels(areas_[i].width()) + "\" height=\"" + pixels(areas_[i].height()) +
                   "\"/></clipPath>\n";
        return all;
    }

private:
    std::vector<QRectF> areas_;
};

/// Writes the operations of one surface as elements, in pixels of the surface.
class ElementWriter {
public:
    ElementWriter(const QSizeF& surface, const page::TextMetrics& metrics, PictureStore& pictures,
                  ClipStore& clips, QByteArray& out)
        : surface_(surface), metrics_(metrics), pictures_(pictures), clips_(clips), out_(out) {}

    /// `ink` and `masked` are the operation's own where mask fills multiply; `masked` may be null.
    /// What stands on no part of the surface is left out.
    void write(const page::DrawnOperation& operation, QRgb ink, const page::Picture* masked) {
        ink_ = ink;
        masked_ = masked;
        std::visit(
            [this](const auto& drawn) {
                area_ = page::inkArea(drawn, surface_, metrics_);
                if (!area_.isEmpty())
                    (*this)(drawn);
            },
            operation);
    }

    void operator()(const page::TextOperation& text) const {
        const int em = page::fontPixels(text.font.points);
        const QString shown = svg::shownText(text.font.face, text.text);
        if (em == 0 || shown.isEmpty() || !near(text.x, text.y))
            return;
        const double foot = text.y + metrics_.ascent(text.font);
        out_ += "<text";
        attribute("x", pixels(text.x));
        attribute("y", pixels(foot));
        attribute("font-family", svg::families(text.font.face));
        attribute("font-size", QByteArray::number(em));
        if (text.font.bold)
            attribute("font-weight", "bold");
        if (text.font.italic)
            attribute("font-style", "italic");
        fillColour();
        clip();
        if (text.width > 0)
            attribute("textLength", pixels(text.width));
        // The widths of sign faces are not those of the faces that have their signs.
        if (shown != text.text)
            attribute("lengthAdjust", "spacingAndGlyphs");
        out_ += '>';
        appendEscaped(shown, out_);
        out_ += "</text>\n";
        if (text.font.underline)
            rectangle(text.x, foot + em * page::kUnderlineDrop * page::kTwipsPerPixel, text.width,
                      std::max(1.0, std::round(em * page::kUnderlineThickness)) *
                          page::kTwipsPerPixel);
    }

    void operator()(const page::LineOperation& line) const {
        if (!near(line.x1, line.y1, line.x2, line.y2))
            return;
        const double width = std::max(1, line.lineWidth) * page::kTwipsPerPixel;
        const double across = std::abs(line.x2 - line.x1);
        const double down = std::abs(line.y2 - line.y1);
        if (across == 0 || down == 0) {
            // It covers the pixels at both its ends, as on screen.
            rectangle(std::min(line.x1, line.x2), std::min(line.y1, line.y2), across + width,
                      down + width);
            return;
        }
        const double centre = page::kTwipsPerPixel / 2;
        out_ += "<line";
        attribute("x1", pixels(line.x1 + centre));
        attribute("y1", pixels(line.y1 + centre));
        attribute("x2", pixels(line.x2 + centre));
        attribute("y2", pixels(line.y2 + centre));
        attribute("stroke", colour(ink_));
        attribute("stroke-width", pixels(width));
        attribute("stroke-linecap", "square");
        clip();
        attribute("style", "shape-rendering:auto");
        out_ += "/>\n";
    }

    void operator()(const page::FillOperation& fill) const {
        rectangle(fill.x, fill.y, fill.width, fill.height,
                  fill.mode == page::FillMode::Mask ? "m" : nullptr);
    }

    void operator()(const page::PictureOperation& picture) const {
        if (!picture.picture || !near(picture.x, picture.y, picture.width, picture.height))
            return;
        const QByteArray name = pictures_.name(masked_ ? *masked_ : *picture.picture);
        if (name.isEmpty())
            return;
        const Place place = onScreen(picture.x, picture.y, picture.width, picture.height);
        const bool isCut =
            !QRectF({}, surface_).contains({place.x, place.y, place.width, place.height});
        if (isCut) {
            out_ += "<g";
            attribute("clip-path", clips_.reference(area_));
            out_ += '>';
        }
        out_ += "<use";
        attribute("xlink:href", "#" + name);
        attribute("transform", "translate(" + pixels(place.x) + ' ' + pixels(place.y) + ") scale(" +
                                   pixels(place.width) + ' ' + pixels(place.height) + ')');
        out_ += isCut ? "/></g>\n" : "/>\n";
    }

    void link(const page::LinkArea& area, const QString& address) const {
        if (!near(area.x, area.y, area.width, area.height))
            return;
        out_ += "<a xlink:href=\"";
        appendEscaped(address, out_);
        const QString& name = area.caption.isEmpty() ? area.tooltip : area.caption;
        if (!name.isEmpty()) {
            out_ += "\" aria-label=\"";
            appendEscaped(name, out_);
        }
        out_ += "\">";
        if (!area.tooltip.isEmpty()) {
            out_ += "<title>";
            appendEscaped(area.tooltip, out_);
            out_ += "</title>";
        }
        out_ += "<rect";
        box(area.x, area.y, area.width, area.height);
        out_ += " fill=\"none\" pointer-events=\"all\"/></a>\n";
    }

private:
    void attribute(const char* name, const QByteArray& value) const {
        out_.append(' ').append(name).append("=\"").append(value).append('"');
    }

    /// The whole surface with its margin is what the group is cut at.
    void clip() const {
        if (area_ != page::withInkMargin(surface_))
            attribute("clip-path", clips_.reference(area_));
    }

    void fillColour() const {
        if ((ink_ & 0xffffff) != 0)
            attribute("fill", colour(ink_));
    }

    void box(double x, double y, double width, double height) const {
        attribute("x", pixels(x));
        attribute("y", pixels(y));
        attribute("width", pixels(width));
        attribute("height", pixels(height));
    }

    struct Place {
        double x, y, width, height;
    };

    /// The whole pixels that an area covers on screen.
    static Place onScreen(double x, double y, double width, double height) {
        const double left = wholePixels(x);
        const double top = wholePixels(y);
        return {left, top, wholePixels(std::min(x + width, kFarTwips)) - left,
                wholePixels(std::min(y + height, kFarTwips)) - top};
    }

    void rectangle(double x, double y, double width, double height,
                   const char* className = nullptr) const {
        if (!near(x, y) || !(width > 0) || !(height > 0))
            return;
        const Place covered = onScreen(x, y, width, height);
        const QRectF place = QRectF(covered.x, covered.y, covered.width, covered.height) & area_;
        if (place.isEmpty())
            return;
        out_ += "<rect";
        box(place.x(), place.y(), place.width(), place.height());
        fillColour();
        if (className)
            attribute("class", className);
        out_ += "/>\n";
    }

    QSizeF surface_;
    const page::TextMetrics& metrics_;
    PictureStore& pictures_;
    ClipStore& clips_;
    QByteArray& out_;
    QRgb ink_ = 0;
    QRectF area_; ///< of the operation at hand
    const page::Picture* masked_ = nullptr;
};

class DocumentWriter {
public:
    DocumentWriter(const page::Sheet& sheet, const page::TextMetrics& metrics,
                   const LinkAddress& address)
        : sheet_(sheet), metrics_(metrics), address_(address),
          inks_(page::multiplyInks(sheet.operations, metrics)),
          masked_(page::maskedPictures(sheet.operations, page::multipliedInk)) {}

    QByteArray write(double scale) {
        for (const page::PlacedSurface& surface : sheet_.surfaces)
            writeSurface(surface);
        QByteArray document = head(scale);
        document += clips_.definitions() + pictures_.definitions() + "</defs>\n";
        return document + body_ + "</svg>\n";
    }

private:
    QByteArray head(double scale) const {
        const QByteArray width = pixels(sheet_.width);
        const QByteArray height = pixels(sheet_.height);
        QByteArray head = "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                          "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"" +
                          pixels(sheet_.width * scale) + "\" height=\"" +
                          pixels(sheet_.height * scale) + "\" viewBox=\"0 0 " + width + ' ' +
                          height + "\" xml:lang=\"fr\" xml:space=\"preserve\">\n<title>";
        appendEscaped(sheet_.title, head);
        return head + "</title>\n" + kStyle + "<rect width=\"" + width + "\" height=\"" + height +
               "\" fill=\"#ffffff\"/>\n<defs>\n";
    }

    void writeSurface(const page::PlacedSurface& surface) {
        const QSizeF size(surface.width, surface.height);
        body_ += "<g transform=\"translate(" + pixels(surface.x) + ' ' + pixels(surface.y) +
                 ")\" clip-path=\"" + clips_.reference(page::withInkMargin(size)) + "\">\n";
        ElementWriter elements(size, metrics_, pictures_, clips_, body_);
        for (std::size_t i = 0; i < sheet_.operations.size(); ++i) {
            if (page::surfaceOf(sheet_.operations[i]) != surface.surface)
                continue;
            const auto masked = masked_.find(i);
            elements.write(sheet_.operations[i], inks_[i],
                           masked == masked_.end() ? nullptr : masked->second.get());
        }
        for (const page::LinkArea& area : sheet_.links)
            if (area.surface == surface.surface)
                if (const QString to = address_ ? address_(area.tag) : QString(); !to.isEmpty())
                    elements.link(area, to);
        body_ += "</g>\n";
    }

    const page::Sheet& sheet_;
    const page::TextMetrics& metrics_;
    const LinkAddress& address_;
    std::vector<QRgb> inks_;
    std::map<std::size_t, std::shared_ptr<const page::Picture>> masked_;
    PictureStore pictures_;
    ClipStore clips_;
    QByteArray body_;
};

} // namespace

QByteArray svgDocument(const page::Sheet& sheet, const page::TextMetrics& metrics,
                       const LinkAddress& address, double scale) {
    return DocumentWriter(sheet, metrics, address).write(scale);
}

} // namespace output
