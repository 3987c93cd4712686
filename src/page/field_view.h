#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <memory>
#include <vector>

namespace page {

// What players that show a whole question at once (files, paper) need to know of its controls.

/// What stands for the controls of a question that nobody has answered yet, each painted at its own
/// size with its top left corner where the control's is. A null picture shows as an empty frame.
struct FieldPictures {
    std::shared_ptr<const Picture> option; ///< Option1
    std::shared_ptr<const Picture> check;  ///< Check1
    std::shared_ptr<const Picture> link;   ///< Image1
    std::shared_ptr<const Picture> video;  ///< Icovideo
};

/// The controls that stand on the question at its end, in the order in which they were placed: one
/// that was placed twice stands where it was placed last. The pointers are into the recording.
std::vector<const FieldOperation*> standingFields(const Recording& recording);

/// Appends the texts, lines, fills and pictures that show a control.
void drawField(const FieldOperation& field, const FieldPictures& pictures,
               const TextMetrics& metrics, std::vector<DrawnOperation>& operations);

/// Appends a frame of lines of one pixel, all inside the area.
void drawFrame(const FillOperation& area, std::vector<DrawnOperation>& operations);

/// Height of a control as drawField() shows it, in twips.
double fieldHeight(const FieldOperation& field, const FieldPictures& pictures,
                   const TextMetrics& metrics);

} // namespace page
