#pragma once

#include "markup/picture_shelf.h"
#include "markup/renderer.h"
#include "platform/qt/font_book.h"

namespace bench {

/// A main window without a window.
class Page : public markup::PageWindow, public markup::SourceWindow {
public:
    explicit Page(markup::PictureShelf& pictures) : renderer{state, *this, pictures, recording} {
        state.fenetreSource = this;
    }

    void draw(const QString& source) {
        holder.setText(source);
        recording.clear();
        state.surfaceDessin = &texte;
        state.hauteurPage = 0;
        state.links = {};
        renderer.affichepage();
    }

    platform::RichTextHolder& code() override { return holder; }
    platform::Surface& pictureTexte() override { return texte; }
    platform::Surface& pictureIllus() override { return illus; }
    platform::Surface& titre() override { return title; }
    void setCaption(const QString&) override {}
    void setBusy(bool) override {}
    void refresh(platform::Surface&) override {}
    void preparePrinter() override {}
    void showVideoFrame() override {}

    platform::FontBook fonts;
    platform::Recording recording;
    platform::Surface texte{platform::SurfaceId::PictureTexte, 9000, fonts, recording};
    platform::Surface illus{platform::SurfaceId::PictureIllus, 2250, fonts, recording};
    platform::Surface title{platform::SurfaceId::Titre, 9000, fonts, recording};
    platform::RichTextHolder holder;
    markup::DrawingState state;
    markup::Renderer renderer;
};

} // namespace bench
