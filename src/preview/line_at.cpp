#include "preview/line_at.h"

#include <QRectF>

#include <limits>
#include <optional>

namespace preview {

namespace {

/// Where an operation stands, when an author could mean it: grounds and rules are passed over for
/// what stands on them.
struct Area : page::PassOver<page::LineOperation, page::FillOperation, page::MenuOperation,
                             page::FieldOperation, page::VideoOperation, page::SwitchOperation,
                             page::ClearOperation, page::CaptionOperation, page::FailedOperation> {
    page::SurfaceId surface;
    const page::TextMetrics& metrics;
    std::optional<QRectF> found = {};

    Area(page::SurfaceId on, const page::TextMetrics& with) : surface(on), metrics(with) {}

    using PassOver::operator();
    void operator()(const page::TextOperation& text) {
        take(text.surface, {text.x, text.y, text.width, metrics.height(text.font)});
    }
    void operator()(const page::PictureOperation& picture) { takeBox(picture); }
    void operator()(const page::LinkOperation& link) { takeBox(link); }

private:
    template <class Box>
    void takeBox(const Box& box) {
        take(box.surface, {box.x, box.y, box.width, box.height});
    }
    void take(page::SurfaceId on, const QRectF& area) {
        if (on == surface)
            found = area;
    }
};

/// 0 inside; what is beside the point in its row counts as nearer than what is above or below.
double distance(const QRectF& area, QPointF point) {
    const double x = std::max({area.left() - point.x(), point.x() - area.right(), 0.0});
    const double y = std::max({area.top() - point.y(), point.y() - area.bottom(), 0.0});
    return x + 8 * y;
}

} // namespace

int lineAt(const markup::DrawnPage& page, page::SurfaceId surface, QPointF point,
           const page::TextMetrics& metrics) {
    double nearest = std::numeric_limits<double>::infinity();
    int line = 0;
    const auto& operations = page.recording.operations();
    for (std::size_t i = 0; i < operations.size(); ++i) {
        Area area(surface, metrics);
        std::visit(area, operations[i]);
        const double away = area.found && page.lineOf(i) > 0
                                ? distance(*area.found, point)
                                : std::numeric_limits<double>::infinity();
        if (away < std::numeric_limits<double>::infinity() && away <= nearest) {
            nearest = away;
            line = page.lineOf(i);
        }
    }
    return line;
}

} // namespace preview
