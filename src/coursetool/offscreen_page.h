#pragma once

#include "markup/picture_shelf.h"
#include "markup/renderer.h"
#include "markup/windows.h"
#include "page/recording.h"
#include "page/rich_text_holder.h"
#include "page/sheet.h"
#include "page/surface.h"
#include "page/text_metrics.h"
#include "viewer/neighbours.h"
#include "viewer/page_view.h"

namespace coursetool {

/// The main window as far as a page can tell, without a window: its surfaces, its source, and a
/// recording of what is drawn.
class OffscreenPage : public markup::PageWindow,
                      public markup::SourceWindow,
                      public viewer::PageView,
                      public viewer::VideoDevice {
public:
    OffscreenPage(const page::TextMetrics& metrics, markup::PictureShelf& pictures);

    markup::DrawingState& state() { return state_; }
    markup::Renderer& renderer() { return renderer_; }
    const page::Recording& recording() const { return recording_; }
    const page::TextMetrics& metrics() const { return metrics_; }

    /// Draws a bare page source.
    void draw(const QString& source);

    /// Height of the text column as the window scrolls it, in twips: what the page asked for,
    /// otherwise down to what was drawn.
    double columnHeight() const;
    /// The column alone, with a margin and as tall as the window has it; the whole page when it
    /// drew on its title or its illustration.
    page::Sheet bareSheet() const;

    page::Surface& pictureTexte() override { return pictureTexte_; }
    page::Surface& pictureIllus() override { return pictureIllus_; }
    page::Surface& titre() override { return titre_; }
    page::RichTextHolder& code() override { return code_; }

    void clearPictures() override { recording_.clear(); }
    void setTitle(const QString& title) override;

    // What shows in the window alone.
    void setBusy(bool) override {}
    void refresh(page::Surface&) override {}
    void preparePrinter() override {}
    void showVideoFrame() override {}
    void setPageVisible(bool) override {}
    void resetLinks() override {}
    void hideScrollBarAndVideoFrame() override {}
    void setCaption(const QString&) override {}
    void setBackEnabled(bool) override {}
    void setForwardEnabled(bool) override {}
    void fitPage() override {}
    void setChapterButtons(bool, bool) override {}
    void setPrintable(bool) override {}
    void setSummary(const QString&, const QString&) override {}
    void setReturnToTestVisible(bool) override {}
    void markWords(const viewer::FoundWords&) override {}
    void showHourglass() override {}
    void restorePointer() override {}
    void close() override {}
    void press(int) override {}
    int scrolled() const override { return 0; }
    void scrollTo(int) override {}
    void seek(double) override {}
    void refresh() override {}

private:
    double drawnHeight(page::SurfaceId surface) const;

    const page::TextMetrics& metrics_;
    page::Recording recording_;
    page::Surface pictureTexte_;
    page::Surface pictureIllus_;
    page::Surface titre_;
    page::RichTextHolder code_;
    markup::DrawingState state_;
    markup::Renderer renderer_;
};

} // namespace coursetool
