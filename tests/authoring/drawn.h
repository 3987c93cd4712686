#pragma once

#include "authoring/markdown.h"
#include "markup/draw_page.h"
#include "support/fake_pictures.h"

#include <algorithm>

/// What the renderer draws of a compiled page.
struct Drawn {
    test_support::FakePictures pictures;
    markup::DrawingState state;
    markup::DrawnPage page;

    explicit Drawn(const std::string& source) {
        markup::drawPage({QString::fromStdString(source).replace(u'\n', QStringLiteral("\r\n"))},
                         {state, pictures, fonts()}, page);
    }

    /// Right end of what is furthest right on a surface, in pixels.
    double right(page::SurfaceId surface) const {
        double furthest = 0;
        for (const page::Operation& operation : page.recording.operations()) {
            if (const auto* text = std::get_if<page::TextOperation>(&operation);
                text && text->surface == surface)
                furthest = std::max(furthest, text->x + text->width);
            if (const auto* link = std::get_if<page::LinkOperation>(&operation);
                link && link->surface == surface)
                furthest = std::max(furthest, link->x + link->width);
        }
        return furthest / 15;
    }
    std::string failures() const {
        std::string text;
        for (const page::Operation& operation : page.recording.operations())
            if (const auto* failed = std::get_if<page::FailedOperation>(&operation))
                text += failed->directive.toStdString() + '\n';
        return text;
    }
};
