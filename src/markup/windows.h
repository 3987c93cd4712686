#pragma once

#include "markup/answer_fields.h"
#include "page/rich_text_holder.h"
#include "page/surface.h"

#include <QString>

namespace markup {

/// A window that asks for a rendering: it holds the source.
class SourceWindow {
public:
    virtual ~SourceWindow() = default;
    virtual page::RichTextHolder& code() = 0;

    /// The answer controls that its pages can place; null where pages place links instead.
    virtual AnswerFields* answerFields() { return nullptr; }
};

/// The main window as the renderer knows it.
class PageWindow {
public:
    virtual ~PageWindow() = default;

    virtual page::Surface& pictureTexte() = 0;
    virtual page::Surface& pictureIllus() = 0;
    virtual page::Surface& titre() = 0;

    virtual void setCaption(const QString& caption) = 0;

    /// Hourglass while busy, the normal pointer afterwards.
    virtual void setBusy(bool busy) = 0;

    /// Makes what was drawn so far on the surface visible now.
    virtual void refresh(page::Surface& surface) = 0;

    /// Shows the frame of the video buttons: the page has a video.
    virtual void showVideoFrame() = 0;

    /// Called when a rendering that goes to the printer starts or is reset.
    virtual void preparePrinter() = 0;
};

} // namespace markup
