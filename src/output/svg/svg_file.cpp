#include "output/svg/svg_file.h"

#include "output/svg/element_writer.h"
#include "output/svg/svg_elements.h"
#include "output/svg/svg_text.h"
#include "page/ink_area.h"
#include "page/masked_pictures.h"
#include "page/multiply_inks.h"

namespace output {

namespace {

using svg::ClipStore;
using svg::ElementWriter;
using svg::Markup;
using svg::PictureStore;
using svg::pixels;
using svg::plain;

/// Crisp lines and fills as on screen; text as wide as it was measured, with every blank.
constexpr char kStyle[] = "text{white-space:pre;font-kerning:none;font-variant-ligatures:none}"
                          "rect,line{shape-rendering:crispEdges}.m{mix-blend-mode:multiply}";

class DocumentWriter {
public:
    DocumentWriter(const page::Sheet& sheet, const page::TextMetrics& metrics, const SvgForm& form)
        : sheet_(sheet), metrics_(metrics), form_(form),
          inks_(page::multiplyInks(sheet.operations, metrics)),
          masked_(page::maskedPictures(sheet.operations, page::multipliedInk)) {}

    QByteArray write() {
        for (const page::PlacedSurface& surface : sheet_.surfaces)
            writeSurface(surface);
        QByteArray document = head();
        document += clips_.definitions() + pictures_.definitions() + "</defs>\n";
        return document + body_ + "</svg>\n";
    }

private:
    /// Down to the definitions, which are open.
    QByteArray head() const {
        const QString width = pixels(sheet_.width);
        const QString height = pixels(sheet_.height);
        QByteArray head;
        Markup markup(head);
        if (form_.isInPage) {
            markup.open("svg")
                .with("viewBox", QStringLiteral("0 0 %1 %2").arg(width, height))
                .with("aria-hidden", "true")
                .with("focusable", "false")
                .endLine();
            markup.open("defs").endLine();
            return head;
        }
        markup.open("svg")
            .with("xmlns", "http://www.w3.org/2000/svg")
            .with("xmlns:xlink", "http://www.w3.org/1999/xlink")
            .with("width", pixels(sheet_.width * form_.scale))
            .with("height", pixels(sheet_.height * form_.scale))
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
        ElementWriter elements(size, metrics_, form_, pictures_, clips_, markup_);
        std::map<std::size_t, svg::TextRow> rows;
        if (form_.isInPage)
            rows = svg::textRows(sheet_.operations, surface.surface, size, metrics_);
        for (std::size_t i = 0; i < sheet_.operations.size(); ++i) {
            if (page::surfaceOf(sheet_.operations[i]) != surface.surface)
                continue;
            if (form_.isInPage &&
                std::holds_alternative<page::TextOperation>(sheet_.operations[i])) {
                if (const auto row = rows.find(i); row != rows.end())
                    elements.writeRow(row->second, sheet_.operations, inks_);
                continue;
            }
            const auto masked = masked_.find(i);
            elements.write(sheet_.operations[i], inks_[i],
                           masked == masked_.end() ? nullptr : masked->second.get());
        }
        for (std::size_t i = 0; i < sheet_.links.size(); ++i)
            if (sheet_.links[i].surface == surface.surface)
                if (const QString to = form_.address ? form_.address(sheet_.links[i]) : QString();
                    !to.isEmpty())
                    elements.link(sheet_.links[i], to, i);
        markup_.close().endLine();
    }

    const page::Sheet& sheet_;
    const page::TextMetrics& metrics_;
    const SvgForm& form_;
    std::vector<QRgb> inks_;
    std::map<std::size_t, std::shared_ptr<const page::Picture>> masked_;
    PictureStore pictures_{form_};
    ClipStore clips_{form_.idPrefix};
    QByteArray body_;
    Markup markup_{body_};
};

} // namespace

QByteArray svgDocument(const page::Sheet& sheet, const page::TextMetrics& metrics,
                       const SvgForm& form) {
    return DocumentWriter(sheet, metrics, form).write();
}

} // namespace output
