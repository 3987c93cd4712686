#pragma once

#include "look/picture_box.h"
#include "markup/windows.h"

#include <QWidget>
#include <QWindow>

namespace exercises {

/// What the renderer of a question takes for the main window: it is that, but the test's window is
/// busy and shows what is drawn.
class QuestionPage : public markup::PageWindow {
public:
    QuestionPage(markup::PageWindow& main, QWidget& window) : main_(main), window_(window) {}

    void setArea(look::PictureBox* Picture2) { Picture2_ = Picture2; }

    page::Surface& pictureTexte() override { return main_.pictureTexte(); }
    page::Surface& pictureIllus() override { return main_.pictureIllus(); }
    page::Surface& titre() override { return main_.titre(); }
    void setCaption(const QString& caption) override { main_.setCaption(caption); }
    void showVideoFrame() override { main_.showVideoFrame(); }
    void preparePrinter() override { main_.preparePrinter(); }

    void setBusy(bool busy) override {
        // Before the window is on the screen no pointer can be over it.
        if (busy && window_.windowHandle() && window_.windowHandle()->isExposed())
            window_.setCursor(Qt::WaitCursor);
        else if (!busy)
            window_.unsetCursor();
    }

    void refresh(page::Surface& surface) override {
        if (!Picture2_ || &surface != &Picture2_->surface()) {
            main_.refresh(surface);
            return;
        }
        Picture2_->showDrawing();
        Picture2_->repaint();
    }

private:
    markup::PageWindow& main_;
    QWidget& window_;
    look::PictureBox* Picture2_ = nullptr;
};

} // namespace exercises
