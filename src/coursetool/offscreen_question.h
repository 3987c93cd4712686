#pragma once

#include "markup/picture_shelf.h"
#include "markup/renderer.h"
#include "markup/windows.h"
#include "platform/recording.h"
#include "platform/rich_text_holder.h"
#include "platform/sheet.h"
#include "platform/surface.h"

namespace coursetool {

/// The test window as far as a question can tell, without a window. A question that draws on the
/// main window's places does so, where nobody sees it.
class OffscreenQuestion : public markup::PageWindow, public markup::SourceWindow {
public:
    OffscreenQuestion(const platform::TextMetrics& metrics, markup::PictureShelf& pictures);

    /// Draws a question that nobody has answered yet; to be called once.
    void draw(const QString& source);

    const markup::DrawingState& state() const { return state_; }
    const platform::Recording& recording() const { return recording_; }

    /// The question's area with a margin around it.
    platform::Sheet sheet(const platform::FieldPictures& fields) const;

    platform::RichTextHolder& code() override { return code_; }
    markup::AnswerFields* answerFields() override { return &fields_; }
    platform::Surface& pictureTexte() override { return pictureTexte_; }
    platform::Surface& pictureIllus() override { return pictureIllus_; }
    platform::Surface& titre() override { return titre_; }

    // What shows in a window alone.
    void setCaption(const QString&) override {}
    void setBusy(bool) override {}
    void refresh(platform::Surface&) override {}
    void showVideoFrame() override {}
    void preparePrinter() override {}

private:
    const platform::TextMetrics& metrics_;
    platform::Recording recording_;
    platform::Surface picture2_;
    platform::Surface pictureTexte_;
    platform::Surface pictureIllus_;
    platform::Surface titre_;
    platform::RichTextHolder code_;
    markup::AnswerFields fields_;
    markup::DrawingState state_;
    markup::Renderer renderer_;
};

} // namespace coursetool
