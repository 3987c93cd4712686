#include "page/sheet.h"

#include "page/link_view.h"
#include "page/twips.h"

#include <algorithm>

namespace page {

namespace {

/// Keeps what is drawn and drops what was wiped since. Links and fields are put on top at the end.
struct Collect : PassOver<LinkOperation, MenuOperation, FieldOperation, VideoOperation,
                          SwitchOperation, CaptionOperation, FailedOperation> {
    std::vector<DrawnOperation>& kept;

    explicit Collect(std::vector<DrawnOperation>& operations) : kept(operations) {}

    using PassOver::operator();
    void operator()(const TextOperation& text) const { kept.emplace_back(text); }
    void operator()(const LineOperation& line) const { kept.emplace_back(line); }
    void operator()(const FillOperation& fill) const { kept.emplace_back(fill); }
    void operator()(const PictureOperation& picture) const { kept.emplace_back(picture); }
    void operator()(const ClearOperation& clear) const {
        std::erase_if(kept, [&](const DrawnOperation& operation) {
            return surfaceOf(operation) == clear.surface;
        });
    }
};

/// A picture link, or the empty frame of one whose symbol is missing.
void drawPictureLink(const LinkOperation& link, std::vector<DrawnOperation>& operations) {
    if (link.picture) {
        operations.emplace_back(PictureOperation{link.surface, link.x, link.y, link.width,
                                                 link.height, link.picture, link.key, true});
        return;
    }
    drawFrame({link.surface, link.x, link.y, link.width, link.height, link.ink, FillMode::Copy},
              operations);
}

void putLinks(const Recording& recording, const TextMetrics& metrics, Sheet& sheet) {
    for (const LinkOperation* link : standingLinks(recording)) {
        if (link->control == LinkControl::Imagelien)
            drawPictureLink(*link, sheet.operations);
        else
            for (TextOperation& line : captionLines(*link, metrics))
                sheet.operations.emplace_back(std::move(line));
        sheet.links.push_back({link->surface, link->x, link->y, link->width, link->height,
                               link->tag, link->tooltip, link->caption.simplified(),
                               link->control == LinkControl::Imagelien ? link->index : -1});
    }
}

/// Whether a click on the control leads to a page.
bool leadsElsewhere(FieldControl control) {
    return control == FieldControl::Labelien || control == FieldControl::Image1 ||
           control == FieldControl::Icovideo;
}

void putFields(const Recording& recording, const TextMetrics& metrics,
               const FieldPictures& pictures, Sheet& sheet) {
    for (const FieldOperation* field : standingFields(recording)) {
        drawField(*field, pictures, metrics, sheet.operations);
        if (leadsElsewhere(field->control))
            sheet.links.push_back({field->surface, field->x, field->y, field->width,
                                   fieldHeight(*field, pictures, metrics), field->tag,
                                   field->tooltip, field->caption.simplified()});
    }
}

struct Foot {
    SurfaceId surface;
    const TextMetrics& metrics;

    double operator()(const TextOperation& text) const {
        return on(text, text.y + metrics.height(text.font));
    }
    double operator()(const LineOperation& line) const {
        return on(line, std::max(line.y1, line.y2) + line.lineWidth * kTwipsPerPixel);
    }
    double operator()(const FillOperation& fill) const { return on(fill, fill.y + fill.height); }
    double operator()(const PictureOperation& picture) const {
        return on(picture, picture.y + picture.height);
    }

private:
    template <class Drawn>
    double on(const Drawn& operation, double foot) const {
        return operation.surface == surface ? foot : 0;
    }
};

struct Move {
    double right, down;

    void operator()(TextOperation& text) const { moveCorner(text); }
    void operator()(LineOperation& line) const {
        line.x1 += right;
        line.x2 += right;
        line.y1 += down;
        line.y2 += down;
    }
    void operator()(FillOperation& fill) const { moveCorner(fill); }
    void operator()(PictureOperation& picture) const { moveCorner(picture); }

private:
    template <class Drawn>
    void moveCorner(Drawn& drawn) const {
        drawn.x += right;
        drawn.y += down;
    }
};

} // namespace

void putOnSheet(const Recording& recording, const TextMetrics& metrics, Sheet& sheet,
                const FieldPictures& fields) {
    for (const Operation& operation : recording.operations())
        std::visit(Collect{sheet.operations}, operation);
    putLinks(recording, metrics, sheet);
    putFields(recording, metrics, fields, sheet);
}

SurfaceId surfaceOf(const DrawnOperation& operation) {
    return std::visit([](const auto& drawn) { return drawn.surface; }, operation);
}

DrawnOperation moved(DrawnOperation operation, double right, double down) {
    std::visit(Move{right, down}, operation);
    return operation;
}

double drawnHeight(const std::vector<DrawnOperation>& operations, SurfaceId surface,
                   const TextMetrics& metrics) {
    double lowest = 0;
    for (const DrawnOperation& operation : operations)
        lowest = std::max(lowest, std::visit(Foot{surface, metrics}, operation));
    return lowest;
}

} // namespace page
