#pragma once

#include "authoring/document.h"
#include "authoring/inline_text.h"
#include "authoring/positions.h"
#include "authoring/ruler.h"

#include <optional>

namespace authoring {

/// The typed answer of a question: its accepted forms, and where they stand.
struct TypedAnswer {
    QStringList forms;
    std::size_t at = 0;
};

/// What the texts of one page or question share.
struct Texts {
    const Ruler& ruler;
    Faults& faults;
    bool question = false;
    std::optional<TypedAnswer> answer = {}; ///< of a question, once its field was met
    int questionLinks = 0;                  ///< links of a question, which may have one
    int pictureLinks = 0;                   ///< picture links of a page so far
    std::vector<Description> descriptions = {};
};

/// Flattens inline elements and composes them as French. `strongInk` is the ink of what is strong;
/// what is strong and emphasised is a word that the page defines, and has an ink of its own.
InlineText flatten(const std::vector<Inline>& inlines, const Style& style, Texts& texts,
                   int strongInk = kBlackInk);

/// The text of a caption, a tooltip or a menu's entry, composed: its styles do not count, and a
/// formula or symbol in it is a fault.
QString captionOf(const std::vector<Inline>& inlines, Texts& texts);

/// A symbol of the image list, a little higher than the line so that it stands at its middle.
Box symbolBox(const QString& directive, const Style& style);

/// Whether the element is a picture whose target starts with `word`.
bool isPicture(const Inline& element, QStringView word);

} // namespace authoring
