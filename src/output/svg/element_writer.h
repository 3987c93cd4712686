#pragma once

#include "output/svg/svg_elements.h"
#include "output/svg/svg_form.h"
#include "output/svg/text_rows.h"
#include "page/sheet.h"
#include "page/text_metrics.h"

#include <QRgb>
#include <QSizeF>

namespace output::svg {

/// Writes the operations of one surface as elements, in pixels of the surface.
class ElementWriter {
public:
    ElementWriter(const QSizeF& surface, const page::TextMetrics& metrics, const SvgForm& form,
                  PictureStore& pictures, ClipStore& clips, Markup& out)
        : surface_(surface), metrics_(metrics), form_(form), pictures_(pictures), clips_(clips),
          out_(out) {}

    /// `ink` and `masked` are the operation's own where mask fills multiply; `masked` may be null.
    /// What stands on no part of the surface is left out.
    void write(const page::DrawnOperation& operation, QRgb ink, const page::Picture* masked);

    /// The runs of a line as one element.
    void writeRow(const TextRow& row, const std::vector<page::DrawnOperation>& operations,
                  const std::vector<QRgb>& inks);

    void link(const page::LinkArea& area, const QString& address, std::size_t index) const;

private:
    void draw(const page::TextOperation& text) const;
    void draw(const page::LineOperation& line) const;
    void draw(const page::FillOperation& fill) const;
    void draw(const page::PictureOperation& picture) const;

    struct Place {
        double x, y, width, height;
    };
    static Place onScreen(double x, double y, double width, double height);

    void attribute(const char* name, const QString& value) const { out_.with(name, value); }
    void attribute(const char* name, const char* value) const { out_.with(name, value); }
    void clip() const;
    void fillColour() const;
    void look(const page::TextOperation& text) const;
    bool isShown(const page::TextOperation& text, const QString& shown) const;
    double footOf(const page::TextOperation& text) const; ///< of its letters, twips
    void underline(const page::TextOperation& text) const;
    void box(double x, double y, double width, double height) const;
    void rectangle(double x, double y, double width, double height,
                   const char* className = nullptr) const;

    QSizeF surface_;
    const page::TextMetrics& metrics_;
    const SvgForm& form_;
    PictureStore& pictures_;
    ClipStore& clips_;
    Markup& out_;
    QRgb ink_ = 0;
    QRectF area_; ///< of the operation at hand
    const page::Picture* masked_ = nullptr;
};

} // namespace output::svg
