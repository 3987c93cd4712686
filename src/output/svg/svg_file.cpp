#include "output/svg/svg_file.h"

#include "output/svg/svg_elements.h"
#include "output/svg/svg_text.h"
#include "page/ink_area.h"
#include "page/masked_pictures.h"
#include "page/multiply_inks.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace output {

namespace {

using svg::ClipStore;
using svg::colour;
using svg::Markup;
using svg::PictureStore;
using svg::pixels;
using svg::plain;

/// Places further out are on no sheet, and their numbers would only be long.
constexpr double kFarTwips = 1e6 * page::kTwipsPerPixel;

/// Crisp lines and fills as on screen; text as wide as it was measured, with every blank.
constexpr char kStyle[] = "text{white-space:pre;font-kerning:none;font-variant-ligatures:none}"
                          "rect,line{shape-rendering:crispEdges}.m{mix-blend-mode:multiply}";

template <class... Values>
bool near(Values... values) {
    return ((std::abs(values) < kFarTwips) && ...);
}

double wholePixels(double twips) {
    return std::round(twips / page::kTwipsPerPixel) * page::kTwipsPerPixel;
}

/// Writes the operations of one surface as elements, in pixels of the surface.
class ElementWriter {
public:
    ElementWriter(const QSizeF& surface, const page::TextMetrics& metrics, PictureStore& pictures,
                  ClipStore& clips, Markup& out)
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
        out_.open("text");
        attribute("x", pixels(text.x));
        attribute("y", pixels(foot));
        attribute("font-family", svg::families(text.font.face));
        attribute("font-size", QString::number(em));
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
        out_.text(plain(shown)).close().endLine();
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
        out_.empty("line");
        attribute("x1", pixels(line.x1 + centre));
        attribute("y1", pixels(line.y1 + centre));
        attribute("x2", pixels(line.x2 + centre));
        attribute("y2", pixels(line.y2 + centre));
        attribute("stroke", colour(ink_));
        attribute("stroke-width", pixels(width));
        attribute("stroke-linecap", "square");
        clip();
        attribute("style", "shape-rendering:auto");
        out_.endLine();
    }

    void operator()(const page::FillOperation& fill) const {
        rectangle(fill.x, fill.y, fill.width, fill.height,
                  fill.mode == page::FillMode::Mask ? "m" : nullptr);
    }

    void operator()(const page::PictureOperation& picture) const {
        if (!picture.picture || !near(picture.x, picture.y, picture.width, picture.height))
            return;
        const QString name = pictures_.name(masked_ ? *masked_ : *picture.picture);
        if (name.isEmpty())
            return;
        const Place place = onScreen(picture.x, picture.y, picture.width, picture.height);
        const bool isCut =
            !QRectF({}, surface_).contains({place.x, place.y, place.width, place.height});
        if (isCut)
            out_.open("g").with("clip-path", clips_.reference(area_));
        out_.empty("use");
        attribute("xlink:href", u'#' + name);
        attribute("transform", QStringLiteral("translate(%1 %2) scale(%3 %4)")
                                   .arg(pixels(place.x), pixels(place.y), pixels(place.width),
                                        pixels(place.height)));
        if (isCut)
            out_.close();
        out_.endLine();
    }

    void link(const page::LinkArea& area, const QString& address) const {
        if (!near(area.x, area.y, area.width, area.height))
            return;
        out_.open("a").with("xlink:href", plain(address));
        const QString& name = area.caption.isEmpty() ? area.tooltip : area.caption;
        if (!name.isEmpty())
            attribute("aria-label", plain(name));
        if (!area.tooltip.isEmpty())
            out_.open("title").text(plain(area.tooltip)).close();
        out_.empty("rect");
        box(area.x, area.y, area.width, area.height);
        out_.with("fill", "none").with("pointer-events", "all").close().endLine();
    }

private:
    void attribute(const char* name, const QString& value) const { out_.with(name, value); }
    void attribute(const char* name, const char* value) const { out_.with(name, value); }

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
        out_.empty("rect");
        box(place.x(), place.y(), place.width(), place.height());
        fillColour();
        if (className)
            attribute("class", className);
        out_.endLine();
    }

    QSizeF surface_;
    const page::TextMetrics& metrics_;
    PictureStore& pictures_;
    ClipStore& clips_;
    Markup& out_;
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
    /// Down to the definitions, which are open.
    QByteArray head(double scale) const {
        const QString width = pixels(sheet_.width);
        const QString height = pixels(sheet_.height);
        QByteArray head;
        Markup markup(head);
        markup.open("svg")
            .with("xmlns", "http://www.w3.org/2000/svg")
            .with("xmlns:xlink", "http://www.w3.org/1999/xlink")
            .with("width", pixels(sheet_.width * scale))
            .with("height", pixels(sheet_.height * scale))
            .with("viewBox", QStringLiteral("0 0 %1 %2").arg(width, height))
            .with("xml:lang", "fr")
            .with("xml:space", "preserve")
            .endLine();
        markup.open("title").text(plain(sheet_.title)).close().endLine();
        markup.open("style").text(QString::fromLatin1(kStyle)).close().endLine();
        markup.empty("rect")
            .with("width", width)
            .with("height", height)
            .with("fill", "#ffffff")
            .endLine();
        markup.open("defs").endLine();
        return head;
    }

    void writeSurface(const page::PlacedSurface& surface) {
        const QSizeF size(surface.width, surface.height);
        markup_.open("g")
            .with("transform",
                  QStringLiteral("translate(%1 %2)").arg(pixels(surface.x), pixels(surface.y)))
            .with("clip-path", clips_.reference(page::withInkMargin(size)))
            .endLine();
        ElementWriter elements(size, metrics_, pictures_, clips_, markup_);
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
        markup_.close().endLine();
    }

    const page::Sheet& sheet_;
    const page::TextMetrics& metrics_;
    const LinkAddress& address_;
    std::vector<QRgb> inks_;
    std::map<std::size_t, std::shared_ptr<const page::Picture>> masked_;
    PictureStore pictures_;
    ClipStore clips_;
    QByteArray body_;
    Markup markup_{body_};
};

} // namespace

QByteArray svgDocument(const page::Sheet& sheet, const page::TextMetrics& metrics,
                       const LinkAddress& address, double scale) {
    return DocumentWriter(sheet, metrics, address).write(scale);
}

} // namespace output
