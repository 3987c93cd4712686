#include "output/svg/element_writer.h"

#include "output/svg/svg_text.h"
#include "page/ink_area.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace output::svg {

namespace {

/// Places further out are on no sheet, and their numbers would only be long.
constexpr double kFarTwips = 1e6 * page::kTwipsPerPixel;

/// From this part of the letters' square on, a gap is a blank.
constexpr double kBlank = 0.15;

template <class... Values>
bool near(Values... values) {
    return ((std::abs(values) < kFarTwips) && ...);
}

double wholePixels(double twips) {
    return std::round(twips / page::kTwipsPerPixel) * page::kTwipsPerPixel;
}

} // namespace

void ElementWriter::write(const page::DrawnOperation& operation, QRgb ink,
                          const page::Picture* masked) {
    ink_ = ink;
    masked_ = masked;
    std::visit(
        [this](const auto& drawn) {
            area_ = page::inkArea(drawn, surface_, metrics_);
            if (!area_.isEmpty())
                draw(drawn);
        },
        operation);
}

void ElementWriter::draw(const page::TextOperation& text) const {
    const QString shown = shownText(text.font.face, text.text);
    if (!isShown(text, shown))
        return;
    out_.open("text");
    attribute("x", pixels(text.x));
    attribute("y", pixels(footOf(text)));
    look(text);
    clip();
    if (text.width > 0)
        attribute("textLength", pixels(text.width));
    // The widths of sign faces are not those of the faces that have their signs.
    if (shown != text.text)
        attribute("lengthAdjust", "spacingAndGlyphs");
    out_.text(plain(shown)).close().endLine();
    underline(text);
}

void ElementWriter::writeRow(const TextRow& row,
                             const std::vector<page::DrawnOperation>& operations,
                             const std::vector<QRgb>& inks) {
    std::vector<const page::TextOperation*> underlined;
    double end = 0;
    bool isOpen = false;
    for (const std::size_t at : row) {
        const auto& text = std::get<page::TextOperation>(operations[at]);
        QString shown = shownText(text.font.face, text.text);
        if (!isShown(text, shown))
            continue;
        ink_ = inks[at];
        area_ = page::inkArea(text, surface_, metrics_);
        if (!isOpen) {
            out_.open("text").with("y", pixels(footOf(text)));
            clip();
        } else if (text.x - end >
                   kBlank * page::fontPixels(text.font.points) * page::kTwipsPerPixel) {
            out_.text(QStringLiteral(" ")); // words apart are no single word
        }
        isOpen = true;
        out_.open("tspan").with("x", pixels(text.x));
        look(text);
        if (shown != text.text && text.width > 0)
            out_.with("textLength", pixels(text.width)).with("lengthAdjust", "spacingAndGlyphs");
        out_.text(plain(shown)).close();
        end = text.x + text.width;
        if (text.font.underline)
            underlined.push_back(&text);
    }
    if (isOpen)
        out_.close().endLine();
    for (const page::TextOperation* text : underlined)
        underline(*text);
}

/// The face, size and ink of a text.
void ElementWriter::look(const page::TextOperation& text) const {
    attribute("font-family",
              form_.families ? form_.families(text.font.face) : families(text.font.face));
    attribute("font-size", QString::number(page::fontPixels(text.font.points)));
    if (text.font.bold)
        attribute("font-weight", "bold");
    if (text.font.italic)
        attribute("font-style", "italic");
    fillColour();
}

bool ElementWriter::isShown(const page::TextOperation& text, const QString& shown) const {
    return page::fontPixels(text.font.points) != 0 && !shown.isEmpty() && near(text.x, text.y);
}

double ElementWriter::footOf(const page::TextOperation& text) const {
    return text.y + metrics_.ascent(text.font);
}

void ElementWriter::underline(const page::TextOperation& text) const {
    if (!text.font.underline)
        return;
    const int em = page::fontPixels(text.font.points);
    rectangle(text.x, footOf(text) + em * page::kUnderlineDrop * page::kTwipsPerPixel, text.width,
              std::max(1.0, std::round(em * page::kUnderlineThickness)) * page::kTwipsPerPixel);
}

void ElementWriter::draw(const page::LineOperation& line) const {
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
    if (form_.isInPage)
        attribute("class", "oblique");
    else
        attribute("style", "shape-rendering:auto");
    out_.endLine();
}

void ElementWriter::draw(const page::FillOperation& fill) const {
    rectangle(fill.x, fill.y, fill.width, fill.height,
              fill.mode == page::FillMode::Mask ? "m" : nullptr);
}

void ElementWriter::draw(const page::PictureOperation& picture) const {
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
    attribute(form_.isInPage ? "href" : "xlink:href", u'#' + name);
    attribute("transform", QStringLiteral("translate(%1 %2) scale(%3 %4)")
                               .arg(pixels(place.x), pixels(place.y), pixels(place.width),
                                    pixels(place.height)));
    if (isCut)
        out_.close();
    out_.endLine();
}

void ElementWriter::link(const page::LinkArea& area, const QString& address,
                         std::size_t index) const {
    if (!near(area.x, area.y, area.width, area.height))
        return;
    out_.open("a").with(form_.isInPage ? "href" : "xlink:href", plain(address));
    if (form_.isInPage)
        out_.with("data-link", QString::number(index)).with("tabindex", "-1");
    const QString& name = area.caption.isEmpty() ? area.tooltip : area.caption;
    if (!form_.isInPage && !name.isEmpty())
        attribute("aria-label", plain(name));
    if (!area.tooltip.isEmpty())
        out_.open("title").text(plain(area.tooltip)).close();
    out_.empty("rect");
    box(area.x, area.y, area.width, area.height);
    out_.with("fill", "none").with("pointer-events", "all").close().endLine();
}

/// The whole surface with its margin is what the group is cut at.
void ElementWriter::clip() const {
    if (area_ != page::withInkMargin(surface_))
        attribute("clip-path", clips_.reference(area_));
}

void ElementWriter::fillColour() const {
    if ((ink_ & 0xffffff) != 0)
        attribute("fill", colour(ink_));
}

void ElementWriter::box(double x, double y, double width, double height) const {
    attribute("x", pixels(x));
    attribute("y", pixels(y));
    attribute("width", pixels(width));
    attribute("height", pixels(height));
}

/// The whole pixels that an area covers on screen.
ElementWriter::Place ElementWriter::onScreen(double x, double y, double width, double height) {
    const double left = wholePixels(x);
    const double top = wholePixels(y);
    return {left, top, wholePixels(std::min(x + width, kFarTwips)) - left,
            wholePixels(std::min(y + height, kFarTwips)) - top};
}

void ElementWriter::rectangle(double x, double y, double width, double height,
                              const char* className) const {
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

} // namespace output::svg
