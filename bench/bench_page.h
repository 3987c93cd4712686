#pragma once

#include "markup/picture_shelf.h"
#include "markup/renderer.h"
#include "page/faces/font_book.h"

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

    page::RichTextHolder& code() override { return holder; }
    page::Surface& pictureTexte() override { return texte; }
    page::Surface& pictureIllus() override { return illus; }
    page::Surface& titre() override { return title; }
    void setCaption(const QString&) override {}
    void setBusy(bool) override {}
    void refresh(page::Surface&) override {}
    void preparePrinter() override {}
    void showVideoFrame() override {}

    page::FontBook fonts;
    page::Recording recording;
    page::Surface texte{page::SurfaceId::PictureTexte, 9000, fonts, recording};
    page::Surface illus{page::SurfaceId::PictureIllus, 2250, fonts, recording};
    page::Surface title{page::SurfaceId::Titre, 9000, fonts, recording};
    page::RichTextHolder holder;
    markup::DrawingState state;
    markup::Renderer renderer;
};

} // namespace bench
