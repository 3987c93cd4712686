#include "page/field_view.h"

#include "page/link_view.h"
#include "page/twips.h"

#include <algorithm>
#include <map>

namespace page {

namespace {

/// The box for a typed answer, as tall as in the test's window.
constexpr double kTextBoxHeight = 24 * kTwipsPerPixel;
constexpr QRgb kTextBoxEdge = 0xff8c8472;
constexpr QRgb kTextBoxGround = 0xffffffff;

/// Side of the frame that stands for a picture that is not there.
constexpr double kPlaceholderSide = 13 * kTwipsPerPixel;

const std::shared_ptr<const Picture>& pictureOf(FieldControl control,
                                                const FieldPictures& pictures) {
    static const std::shared_ptr<const Picture> kNone;
    switch (control) {
    case FieldControl::Option1:
        return pictures.option;
    case FieldControl::Check1:
        return pictures.check;
    case FieldControl::Image1:
        return pictures.link;
    case FieldControl::Icovideo:
        return pictures.video;
    case FieldControl::Text1:
    case FieldControl::Labelien:
        break;
    }
    return kNone;
}

/// The caption of a label as that of a link.
LinkOperation asLink(const FieldOperation& label) {
    LinkOperation link;
    link.surface = label.surface;
    link.x = label.x;
    link.y = label.y;
    link.caption = label.caption;
    link.font = label.font;
    link.ink = label.ink;
    return link;
}

void drawTextBox(const FieldOperation& field, std::vector<DrawnOperation>& operations) {
    FillOperation box{field.surface,  field.x,        field.y,       field.width,
                      kTextBoxHeight, kTextBoxGround, FillMode::Copy};
    operations.emplace_back(box);
    box.ink = kTextBoxEdge;
    drawFrame(box, operations);
}

} // namespace

std::vector<const FieldOperation*> standingFields(const Recording& recording) {
    std::map<std::pair<FieldControl, int>, const FieldOperation*> last;
    std::vector<const FieldOperation*> fields;
    for (const Operation& operation : recording.operations())
        if (const auto* field = std::get_if<FieldOperation>(&operation)) {
            last[{field->control, field->index}] = field;
            fields.push_back(field);
        }
    std::erase_if(fields, [&](const FieldOperation* field) {
        return last[{field->control, field->index}] != field;
    });
    return fields;
}

void drawField(const FieldOperation& field, const FieldPictures& pictures,
               const TextMetrics& metrics, std::vector<DrawnOperation>& operations) {
    if (field.control == FieldControl::Text1) {
        drawTextBox(field, operations);
    } else if (field.control == FieldControl::Labelien) {
        for (TextOperation& line : captionLines(asLink(field), metrics))
            operations.emplace_back(std::move(line));
    } else if (const auto& picture = pictureOf(field.control, pictures)) {
        const QSize pixels = picture->size();
        operations.emplace_back(PictureOperation{field.surface,
                                                 field.x,
                                                 field.y,
                                                 pixels.width() * kTwipsPerPixel,
                                                 pixels.height() * kTwipsPerPixel,
                                                 picture,
                                                 {},
                                                 true});
    } else {
        drawFrame({field.surface, field.x, field.y, kPlaceholderSide, kPlaceholderSide,
                   kTextBoxEdge, FillMode::Copy},
                  operations);
    }
}

void drawFrame(const FillOperation& area, std::vector<DrawnOperation>& operations) {
    const double right = area.x + area.width - kTwipsPerPixel;
    const double foot = area.y + area.height - kTwipsPerPixel;
    const auto edge = [&](double x1, double y1, double x2, double y2) {
        operations.emplace_back(LineOperation{area.surface, x1, y1, x2, y2, area.ink, 1});
    };
    edge(area.x, area.y, right, area.y);
    edge(area.x, foot, right, foot);
    edge(area.x, area.y, area.x, foot);
    edge(right, area.y, right, foot);
}

double fieldHeight(const FieldOperation& field, const FieldPictures& pictures,
                   const TextMetrics& metrics) {
    if (field.control == FieldControl::Text1)
        return kTextBoxHeight;
    if (field.control == FieldControl::Labelien)
        return captionExtent(field.caption, field.font, metrics).height;
    const auto& picture = pictureOf(field.control, pictures);
    return picture ? picture->size().height() * kTwipsPerPixel : kPlaceholderSide;
}

} // namespace page
