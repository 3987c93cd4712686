#include "platform/cairo/sheet_player.h"

#include "platform/multiply_inks.h"
#include "platform/twips.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <vector>

namespace platform {

namespace {

/// Words stand this part of the em lower than their line, in turn. The widths in a file are whole
/// thousandths of the em, and cairo lets their errors add up until the height changes by more than
/// a thousandth. The change itself, 0.3 twips at 12 points, shows on no device; both are on the
/// same side, for readers that cut heights to whole pixels.
constexpr double kLowered[] = {0.0006, 0.0018};

/// Whether cairo takes a character for one; others would spoil the whole document.
bool isCharacter(char32_t c) {
    return c >= 0x20 && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF) && (c < 0xFDD0 || c > 0xFDEF) &&
           (c & 0xFFFE) != 0xFFFE;
}

/// Appends the character as UTF-8 and returns the number of bytes, 0 for none.
int append(std::string& text, char32_t c) {
    if (c == 0)
        return 0;
    const char32_t shown = isCharacter(c) ? c : U'\uFFFD';
    const QByteArray bytes = QString::fromUcs4(&shown, 1).toUtf8();
    text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return static_cast<int>(bytes.size());
}

/// Whole pixels of the screen, in twips.
double snapped(double twips) {
    return std::round(twips / kTwipsPerPixel) * kTwipsPerPixel;
}

/// The whole pixels that a rectangle covers on screen, as far as they are on the surface. Empty for
/// what is outside or no rectangle.
QRectF snapped(double x, double y, double width, double height, const QRectF& surface) {
    if (!(width > 0 && height > 0))
        return {};
    const QRectF area(
        QPointF(snapped(std::max(x, surface.left())), snapped(std::max(y, surface.top()))),
        QPointF(snapped(std::min(x + width, surface.right())),
                snapped(std::min(y + height, surface.bottom()))));
    return area.width() > 0 && area.height() > 0 ? area : QRectF();
}

/// Strips of a gradient meet at edges that need not be pixels of a reader's screen, and paper would
/// shine through there. A strip reaches under the next one, which covers it.
double overlap(const FillOperation& fill, const Operation* next) {
    const auto* above = next ? std::get_if<FillOperation>(next) : nullptr;
    if (!above || fill.mode != FillMode::Copy || above->mode != FillMode::Copy ||
        above->surface != fill.surface || above->x != fill.x || above->width != fill.width ||
        std::abs(above->y - (fill.y + fill.height)) > 1)
        return 0;
    return std::clamp(above->height, 0.0, kTwipsPerPixel);
}

} // namespace

/// Draws the operations of one surface, whose corner is the origin.
class SheetPlayer::Player {
public:
    Player(SheetPlayer& owner, cairo_t* cairo, const PlacedSurface& place)
        : owner_(owner), cairo_(cairo), surface_(place.surface),
          area_(0, 0, place.width, place.height) {}

    /// `next` may be null.
    void play(const Operation& operation, QRgb ink, const Operation* next) {
        ink_ = ink;
        next_ = next;
        std::visit(*this, operation);
    }

    void operator()(const TextOperation& text) {
        const double height = owner_.fonts_.height(text.font);
        if (text.surface != surface_ ||
            !shows(text.x, text.y, text.x + text.width, text.y + height))
            return;
        setInk();
        const double foot = text.y + owner_.fonts_.ascent(text.font);
        const auto glyphs = owner_.fonts_.glyphs(text.font, text.text);
        for (std::size_t first = 0, end = 0; first < glyphs.size(); first = end) {
            while (end < glyphs.size() && glyphs[end].stage == glyphs[first].stage)
                ++end;
            showRun(text, foot, std::span(glyphs).subspan(first, end - first));
        }
        if (text.font.underline)
            underline(text, foot);
    }

    void operator()(const LineOperation& line) {
        const double width = std::max(1, line.lineWidth) * kTwipsPerPixel;
        const double left = std::min(line.x1, line.x2);
        const double right = std::max(line.x1, line.x2);
        const double top = std::min(line.y1, line.y2);
        const double bottom = std::max(line.y1, line.y2);
        if (line.surface != surface_ ||
            !shows(left - width, top - width, right + width, bottom + width))
            return;
        setInk();
        if (top == bottom || left == right) {
            straightLine(left, top, right, bottom, width);
            return;
        }
        if (!reachable(line.x1, line.y1) || !reachable(line.x2, line.y2))
            return;
        // A line of one pixel covers the pixel at its position.
        constexpr double kCentre = kTwipsPerPixel / 2;
        cairo_set_line_width(cairo_, width);
        cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_SQUARE);
        cairo_move_to(cairo_, line.x1 + kCentre, line.y1 + kCentre);
        cairo_line_to(cairo_, line.x2 + kCentre, line.y2 + kCentre);
        cairo_stroke(cairo_);
    }

    void operator()(const FillOperation& fill) {
        if (fill.surface != surface_)
            return;
        setInk();
        if (fill.mode == FillMode::Mask)
            cairo_set_operator(cairo_, CAIRO_OPERATOR_MULTIPLY);
        fillArea(snapped(fill.x, fill.y, fill.width, fill.height + overlap(fill, next_), area_));
        cairo_set_operator(cairo_, CAIRO_OPERATOR_OVER);
    }

    void operator()(const PictureOperation& picture) {
        if (picture.surface != surface_ || !picture.picture || !(picture.width > 0) ||
            !(picture.height > 0) || !reachable(picture.x, picture.y) ||
            !reachable(picture.width, picture.height) ||
            !shows(picture.x, picture.y, picture.x + picture.width, picture.y + picture.height))
            return;
        const double x = snapped(picture.x);
        const double y = snapped(picture.y);
        const double width = snapped(picture.x + picture.width) - x;
        const double height = snapped(picture.y + picture.height) - y;
        const QSize drawn(static_cast<int>(width / kTwipsPerPixel),
                          static_cast<int>(height / kTwipsPerPixel));
        if (drawn.isEmpty())
            return;
        cairo_surface_t* source = owner_.pictures_.surface(picture.picture, drawn);
        if (!source)
            return;
        cairo_save(cairo_);
        cairo_translate(cairo_, x, y);
        cairo_scale(cairo_, width / cairo_image_surface_get_width(source),
                    height / cairo_image_surface_get_height(source));
        // Painted as it stands: with a way to extend it, cairo would store it anew on every page.
        cairo_set_source_surface(cairo_, source, 0, 0);
        cairo_paint(cairo_);
        cairo_restore(cairo_);
    }

    template <class Other>
    void operator()(const Other&) {}

private:
    /// Farther positions, in twips, would leave the range of cairo's coordinates.
    static bool reachable(double x, double y) {
        constexpr double kFar = 1e6 * kTwipsPerPixel;
        return std::abs(x) < kFar && std::abs(y) < kFar;
    }

    bool shows(double left, double top, double right, double bottom) const {
        return left < area_.right() && top < area_.bottom() && right > 0 && bottom > 0;
    }

    void setInk() {
        cairo_set_source_rgb(cairo_, qRed(ink_) / 255.0, qGreen(ink_) / 255.0, qBlue(ink_) / 255.0);
    }

    void fillArea(const QRectF& area) {
        if (area.isEmpty())
            return;
        cairo_rectangle(cairo_, area.x(), area.y(), area.width(), area.height());
        cairo_fill(cairo_);
    }

    void showRun(const TextOperation& text, double foot,
                 std::span<const FontBook::PlacedGlyph> run) {
        const CairoFaces::Face& face = owner_.faces_.face(text.font, run.front().stage);
        if (!face.face)
            return;
        const double em = fontPixels(text.font.points) * kTwipsPerPixel;
        utf8_.clear();
        glyphs_.clear();
        clusters_.clear();
        bool wordBegins = true;
        for (const FontBook::PlacedGlyph& glyph : run) {
            if (wordBegins)
                owner_.word_ = !owner_.word_;
            const double x = text.x + glyph.offset;
            if (!reachable(x, foot))
                break;
            glyphs_.push_back({glyph.index, x, foot + kLowered[owner_.word_] * em});
            clusters_.push_back({append(utf8_, glyph.character), 1});
            wordBegins = glyph.character == U' ';
        }
        const cairo_matrix_t size = {em, 0, -face.slant * em, em, 0, 0};
        cairo_set_font_face(cairo_, face.face);
        cairo_set_font_matrix(cairo_, &size);
        cairo_show_text_glyphs(cairo_, utf8_.data(), static_cast<int>(utf8_.size()), glyphs_.data(),
                               static_cast<int>(glyphs_.size()), clusters_.data(),
                               static_cast<int>(clusters_.size()), cairo_text_cluster_flags_t{});
    }

    void underline(const TextOperation& text, double foot) {
        // As on screen: a tenth of the em below the foot, a fourteenth thick.
        const int em = fontPixels(text.font.points);
        const double top = snapped(foot + em / 10.0 * kTwipsPerPixel);
        const double thickness = std::max(1, qRound(em / 14.0)) * kTwipsPerPixel;
        fillArea(snapped(text.x, top, text.width, thickness, area_));
    }

    void straightLine(double left, double top, double right, double bottom, double width) {
        const bool level = top == bottom;
        const double x = snapped(left);
        const double y = snapped(top);
        const double length = level ? snapped(right) - x : snapped(bottom) - y;
        const double reach = std::max(length, width);
        fillArea(snapped(x, y, level ? reach : width, level ? width : reach, area_));
    }

    SheetPlayer& owner_;
    cairo_t* cairo_;
    SurfaceId surface_;
    QRectF area_;
    QRgb ink_ = 0xff000000;
    const Operation* next_ = nullptr;
    std::string utf8_;
    std::vector<cairo_glyph_t> glyphs_;
    std::vector<cairo_text_cluster_t> clusters_;
};

SheetPlayer::SheetPlayer(const FontBook& fonts, CairoFaces& faces, CairoPictures& pictures)
    : fonts_(fonts), faces_(faces), pictures_(pictures) {}

void SheetPlayer::play(const Sheet& sheet, cairo_t* cairo) {
    const std::vector<Operation>& operations = sheet.operations;
    const std::vector<QRgb> inks = multiplyInks(operations, fonts_);
    // As on the window, each surface is a picture of its own.
    for (const PlacedSurface& place : sheet.surfaces) {
        Player player(*this, cairo, place);
        cairo_save(cairo);
        cairo_rectangle(cairo, place.x, place.y, place.width, place.height);
        cairo_clip(cairo);
        cairo_translate(cairo, place.x, place.y);
        for (std::size_t i = 0; i < operations.size(); ++i)
            player.play(operations[i], inks[i],
                        i + 1 < operations.size() ? &operations[i + 1] : nullptr);
        cairo_restore(cairo);
    }
}

} // namespace platform
