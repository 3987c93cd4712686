#include "output/pdf/sheet_player.h"

#include "page/ink_area.h"
#include "page/masked_pictures.h"
#include "page/multiply_inks.h"
#include "page/twips.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <vector>

namespace output {

namespace {

/// Farthest that a glyph may stand from its place, in twips. The advances in a file are too short,
/// so a reader comes out before the next glyph's place; cairo gives it anew only where it is more
/// than 3 thousandths of the em away from where cairo believes the reader to be, or where the
/// height changes by more than one.
constexpr double kMaxDrift = 1;

/// So a text that has drifted goes on at the other of these two heights (parts of the em below the
/// line). The difference, 0.3 twips at 12 points, shows on no device; both are on the same side,
/// for readers that cut heights to whole pixels.
constexpr double kLowered[] = {0.0006, 0.0018};

/// Whether cairo takes a character for one; others would spoil the whole document.
bool isCharacter(char32_t c) {
    return c >= 0x20 && c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF) && (c < 0xFDD0 || c > 0xFDEF) &&
           (c & 0xFFFE) != 0xFFFE;
}

/// What a reader is to take a character for: of tabs and control characters, a gap is all that
/// shows.
char32_t readCharacter(char32_t c) {
    return c > 0 && c < 0x20 ? U' ' : c;
}

/// Appends the character as UTF-8 and returns the number of bytes, 0 for none.
int append(std::string& text, char32_t c) {
    if (c == 0)
        return 0;
    const char32_t shown = isCharacter(c) ? c : U'\uFFFD';
    const int more = shown < 0x80 ? 0 : shown < 0x800 ? 1 : shown < 0x10000 ? 2 : 3;
    constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLead[more] | shown >> 6 * more);
    for (int i = more - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (shown >> 6 * i & 0x3F));
    return more + 1;
}

/// Whole pixels of the screen, in twips.
double snapped(double twips) {
    return std::round(twips / page::kTwipsPerPixel) * page::kTwipsPerPixel;
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
double overlap(const page::FillOperation& fill, const page::DrawnOperation* next) {
    const auto* above = next ? std::get_if<page::FillOperation>(next) : nullptr;
    if (!above || fill.mode != page::FillMode::Copy || above->mode != page::FillMode::Copy ||
        above->surface != fill.surface || above->x != fill.x || above->width != fill.width ||
        std::abs(above->y - (fill.y + fill.height)) > 1)
        return 0;
    return std::clamp(above->height, 0.0, page::kTwipsPerPixel);
}

} // namespace

/// Draws the operations of one surface, whose corner is the origin.
class SheetPlayer::Player {
public:
    Player(SheetPlayer& owner, cairo_t* cairo, const page::PlacedSurface& place)
        : owner_(owner), cairo_(cairo), surface_(place.surface),
          area_(0, 0, place.width, place.height) {}

    /// `masked` and `next` may be null.
    void play(const page::DrawnOperation& operation, QRgb ink,
              const std::shared_ptr<const page::Picture>& masked,
              const page::DrawnOperation* next) {
        if (page::surfaceOf(operation) != surface_)
            return;
        ink_ = ink;
        masked_ = masked;
        next_ = next;
        std::visit([this](const auto& drawn) { playWhereItMayInk(drawn); }, operation);
    }

    void operator()(const page::TextOperation& text) {
        setInk();
        const double foot = text.y + owner_.fonts_.ascent(text.font);
        const auto glyphs = owner_.fonts_.glyphs(text.font, text.text);
        for (std::size_t first = 0, end = 0; first < glyphs.size(); first = end) {
            while (end < glyphs.size() && glyphs[end].fallback == glyphs[first].fallback)
                ++end;
            showRun(text, foot, std::span(glyphs).subspan(first, end - first));
        }
        if (text.font.underline)
            underline(text, foot);
    }

    void operator()(const page::LineOperation& line) {
        const double width = std::max(1, line.lineWidth) * page::kTwipsPerPixel;
        const double left = std::min(line.x1, line.x2);
        const double right = std::max(line.x1, line.x2);
        const double top = std::min(line.y1, line.y2);
        const double bottom = std::max(line.y1, line.y2);
        setInk();
        if (top == bottom || left == right) {
            straightLine(left, top, right, bottom, width);
            return;
        }
        if (!reachable(line.x1, line.y1) || !reachable(line.x2, line.y2))
            return;
        // A line of one pixel covers the pixel at its position.
        constexpr double kCentre = page::kTwipsPerPixel / 2;
        cairo_set_line_width(cairo_, width);
        cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_SQUARE);
        cairo_move_to(cairo_, line.x1 + kCentre, line.y1 + kCentre);
        cairo_line_to(cairo_, line.x2 + kCentre, line.y2 + kCentre);
        cairo_stroke(cairo_);
    }

    void operator()(const page::FillOperation& fill) {
        setInk();
        if (fill.mode == page::FillMode::Mask)
            cairo_set_operator(cairo_, CAIRO_OPERATOR_MULTIPLY);
        fillArea(snapped(fill.x, fill.y, fill.width, fill.height + overlap(fill, next_), area_));
        cairo_set_operator(cairo_, CAIRO_OPERATOR_OVER);
    }

    void operator()(const page::PictureOperation& picture) {
        if (!picture.picture || !(picture.width > 0) || !(picture.height > 0) ||
            !reachable(picture.x, picture.y) || !reachable(picture.width, picture.height))
            return;
        const double x = snapped(picture.x);
        const double y = snapped(picture.y);
        const double width = snapped(picture.x + picture.width) - x;
        const double height = snapped(picture.y + picture.height) - y;
        const QSize drawn(static_cast<int>(width / page::kTwipsPerPixel),
                          static_cast<int>(height / page::kTwipsPerPixel));
        if (drawn.isEmpty())
            return;
        cairo_surface_t* source =
            owner_.pictures_.surface(masked_ ? masked_ : picture.picture, drawn);
        if (!source)
            return;
        cairo_save(cairo_);
        cairo_translate(cairo_, x, y);
        cairo_scale(cairo_, width / cairo_image_surface_get_width(source),
                    height / cairo_image_surface_get_height(source));
        paint(source);
        cairo_restore(cairo_);
    }

private:
    /// Most operations may ink all of the surface with its margin, which is clipped to already.
    template <class Drawing>
    void playWhereItMayInk(const Drawing& drawing) {
        inkArea_ = page::inkArea(drawing, area_.size(), owner_.fonts_);
        if (inkArea_.isEmpty())
            return;
        const bool isCut = reachesOut(drawing);
        if (isCut) {
            cairo_save(cairo_);
            cairo_rectangle(cairo_, inkArea_.x(), inkArea_.y(), inkArea_.width(),
                            inkArea_.height());
            cairo_clip(cairo_);
        }
        (*this)(drawing);
        if (isCut)
            cairo_restore(cairo_);
    }

    /// Whether something would show where it may not.
    bool reachesOut(const page::TextOperation&) const { return isNarrowed(); }
    bool reachesOut(const page::LineOperation&) const { return isNarrowed(); }
    bool reachesOut(const page::FillOperation&) const { return false; } // cut as numbers
    bool reachesOut(const page::PictureOperation& picture) const {
        return !area_.contains(
            {snapped(picture.x), snapped(picture.y), picture.width, picture.height});
    }
    bool isNarrowed() const { return inkArea_ != page::withInkMargin(area_.size()); }

    /// Painted as it stands: with a way to extend it, cairo would store it anew on every page. A
    /// page must not name a picture twice among its resources, as cairo would have it; a group has
    /// resources of its own.
    void paint(cairo_surface_t* source) {
        const bool again = !owner_.painted_.insert(source).second;
        if (again) {
            cairo_rectangle(cairo_, 0, 0, cairo_image_surface_get_width(source),
                            cairo_image_surface_get_height(source));
            cairo_clip(cairo_);
            cairo_push_group(cairo_);
        }
        cairo_set_source_surface(cairo_, source, 0, 0);
        cairo_paint(cairo_);
        if (again) {
            cairo_pop_group_to_source(cairo_);
            cairo_paint(cairo_);
        }
    }

    /// Farther positions, in twips, would leave the range of cairo's coordinates.
    static bool reachable(double x, double y) {
        constexpr double kFar = 1e6 * page::kTwipsPerPixel;
        return std::abs(x) < kFar && std::abs(y) < kFar;
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

    void showRun(const page::TextOperation& text, double foot,
                 std::span<const page::FontBook::PlacedGlyph> run) {
        CairoFace& face = owner_.faces_.face(text.font, run.front().fallback);
        if (!face.face())
            return;
        const double em = page::fontPixels(text.font.points) * page::kTwipsPerPixel;
        placeRun(text.x, foot, em, face, run);
        const cairo_matrix_t size = {em, 0, -face.slant() * em, em, 0, 0};
        cairo_set_font_face(cairo_, face.face());
        cairo_set_font_matrix(cairo_, &size);
        const int count = static_cast<int>(glyphs_.size());
        // Where the face itself tells the characters, it costs less not to.
        bool isTold = true;
        for (const page::FontBook::PlacedGlyph& glyph : run.first(glyphs_.size()))
            isTold = face.tells(glyph.index, readCharacter(glyph.character)) && isTold;
        if (isTold) {
            cairo_show_glyphs(cairo_, glyphs_.data(), count);
            return;
        }
        utf8_.clear();
        clusters_.clear();
        for (const page::FontBook::PlacedGlyph& glyph : run.first(glyphs_.size()))
            clusters_.push_back({append(utf8_, readCharacter(glyph.character)), 1});
        cairo_show_text_glyphs(cairo_, utf8_.data(), static_cast<int>(utf8_.size()), glyphs_.data(),
                               count, clusters_.data(), count, cairo_text_cluster_flags_t{});
    }

    void placeRun(double x, double foot, double em, const CairoFace& face,
                  std::span<const page::FontBook::PlacedGlyph> run) {
        glyphs_.clear();
        double drift = kMaxDrift; // what the run before left is not known
        for (const page::FontBook::PlacedGlyph& glyph : run) {
            if (!reachable(x + glyph.offset, foot))
                break;
            if (drift >= kMaxDrift) {
                owner_.lowered_ = !owner_.lowered_;
                drift = 0;
            }
            glyphs_.push_back(
                {glyph.index, x + glyph.offset, foot + kLowered[owner_.lowered_] * em});
            drift += face.shortfall(glyph.index) * em;
        }
    }

    void underline(const page::TextOperation& text, double foot) {
        // As on screen: a tenth of the em below the foot, a fourteenth thick.
        const int em = page::fontPixels(text.font.points);
        const double top = snapped(foot + em / 10.0 * page::kTwipsPerPixel);
        const double thickness = std::max(1, qRound(em / 14.0)) * page::kTwipsPerPixel;
        fillArea(snapped(text.x, top, text.width, thickness, inkArea_));
    }

    void straightLine(double left, double top, double right, double bottom, double width) {
        const double x = snapped(left);
        const double y = snapped(top);
        fillArea(snapped(x, y, snapped(right) - x + width, snapped(bottom) - y + width, inkArea_));
    }

    SheetPlayer& owner_;
    cairo_t* cairo_;
    page::SurfaceId surface_;
    QRectF area_;
    QRectF inkArea_; ///< of the operation at hand
    QRgb ink_ = 0xff000000;
    std::shared_ptr<const page::Picture> masked_; ///< what stands in for the picture at hand
    const page::DrawnOperation* next_ = nullptr;
    std::string utf8_;
    std::vector<cairo_glyph_t> glyphs_;
    std::vector<cairo_text_cluster_t> clusters_;
};

SheetPlayer::SheetPlayer(const page::FontBook& fonts, CairoFaces& faces, CairoPictures& pictures)
    : fonts_(fonts), faces_(faces), pictures_(pictures) {}

void SheetPlayer::play(const page::Sheet& sheet, cairo_t* cairo) {
    const std::vector<page::DrawnOperation>& operations = sheet.operations;
    const std::vector<QRgb> inks = page::multiplyInks(operations, fonts_);
    const auto masked = page::maskedPictures(operations, page::multipliedInk);
    painted_.clear();
    // As on the window, each surface is a picture of its own.
    for (const page::PlacedSurface& place : sheet.surfaces) {
        Player player(*this, cairo, place);
        cairo_save(cairo);
        cairo_translate(cairo, place.x, place.y);
        const QRectF shown = page::withInkMargin({place.width, place.height});
        cairo_rectangle(cairo, shown.x(), shown.y(), shown.width(), shown.height());
        cairo_clip(cairo);
        for (std::size_t i = 0; i < operations.size(); ++i) {
            const auto picture = masked.find(i);
            player.play(operations[i], inks[i], picture == masked.end() ? nullptr : picture->second,
                        i + 1 < operations.size() ? &operations[i + 1] : nullptr);
        }
        cairo_restore(cairo);
    }
}

} // namespace output
