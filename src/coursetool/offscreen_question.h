#pragma once

#include "markup/picture_shelf.h"
#include "markup/renderer.h"
#include "markup/windows.h"
#include "page/recording.h"
#include "page/rich_text_holder.h"
#include "page/sheet.h"
#include "page/surface.h"

namespace coursetool {

/// The test window as far as a question can tell, without a window. A question that draws on the
/// main window's places does so, where nobody sees it.
class OffscreenQuestion : public markup::PageWindow, public markup::SourceWindow {
public:
    OffscreenQuestion(const page::TextMetrics& metrics, markup::PictureShelf& pictures);

    /// Draws a question that nobody has answered yet; to be called once.
    void draw(const QString& source);

    const markup::DrawingState& state() const { return state_; }
    const page::Recording& recording() const { return recording_; }

    /// The question's area with a margin around it.
    page::Sheet sheet(const page::FieldPictures& fields) const;

    page::RichTextHolder& code() override { return code_; }
    markup::AnswerFields* answerFields() override { return &fields_; }
    page::Surface& pictureTexte() override { return pictureTexte_; }
    page::Surface& pictureIllus() override { return pictureIllus_; }
    page::Surface& titre() override { return titre_; }

    // What shows in a window alone.
    void setCaption(const QString&) override {}
    void setBusy(bool) override {}
    void refresh(page::Surface&) override {}
    void showVideoFrame() override {}
    void preparePrinter() override {}

private:
    const page::TextMetrics& metrics_;
    page::Recording recording_;
    page::Surface picture2_;
    page::Surface pictureTexte_;
    page::Surface pictureIllus_;
    page::Surface titre_;
    page::RichTextHolder code_;
    markup::AnswerFields fields_;
    markup::DrawingState state_;
    markup::Renderer renderer_;
};

} // namespace coursetool
