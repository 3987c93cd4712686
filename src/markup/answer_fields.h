#pragma once

#include "page/recording.h"
#include "text/bounded_array.h"

namespace markup {

/// The controls that a question can place, all hidden before it is drawn. The test window owns
/// them and shows what the page put here; positions are twips on the surface of the question.
struct AnswerFields {
    static constexpr int kLastChoice = 4;

    /// Width that the typed answer takes in a line, in twips.
    static constexpr double kTextBoxWidth = 200 * 15;
    /// Side of the pictures beside a link and of the video icon, and the gap after the former.
    static constexpr double kIconWidth = 24 * 15;
    static constexpr double kIconGap = 8 * 15;

    struct Field {
        bool visible = false;
        page::FieldOperation place;
    };
    using Choices = text::BoundedArray<Field, 0, kLastChoice>;

    Choices Option1;
    Choices Check1;
    Field Text1;
    Field Labelien; ///< link to a course page; its tag holds the page number
    Field Image1;   ///< the picture left of the link
    Field Icovideo; ///< leads to a course page with a video
};

} // namespace markup
