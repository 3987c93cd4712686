#pragma once

#include "markup/renderer.h"
#include "support/fake_pictures.h"
#include "support/fixed_metrics.h"
#include "support/recording_text.h"

#include <gtest/gtest.h>

#include <ostream>

namespace test_support {

/// A page source and the operations it is to give.
struct PageRow {
    const char* name;
    const char16_t* source;
    QStringList expected;
};

inline void PrintTo(const PageRow& row, std::ostream* out) {
    *out << row.name;
}

/// Operations as a test prints them: a line each.
inline std::string lines(const QStringList& operations) {
    return operations.join(u'\n').toStdString();
}

/// A main window without a window: everything that a page can be drawn on, and what became of it.
class PageBench : public markup::PageWindow, public markup::SourceWindow {
public:
    PageBench() {
        state.surfaceDessin = &texte;
        state.fenetreSource = this;
    }

    /// Draws a source whose lines are given with "\n" and gives the operations, a line each.
    QStringList draw(QString source) {
        recording.clear();
        holder.setText(source.replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
        renderer.affichepage();
        return describe(recording);
    }

    page::RichTextHolder& code() override { return holder; }
    page::Surface& pictureTexte() override { return texte; }
    page::Surface& pictureIllus() override { return illus; }
    page::Surface& titre() override { return title; }
    void setCaption(const QString& text) override { caption = text; }
    void setBusy(bool on) override { busy.append(on); }
    void refresh(page::Surface& surface) override {
        refreshedAt.append(static_cast<int>(recording.size()));
        refreshed = &surface;
    }
    void preparePrinter() override { ++preparations; }
    void showVideoFrame() override { ++videoFrames; }
    markup::AnswerFields* answerFields() override { return isQuestion ? &fields : nullptr; }

    FixedMetrics metrics;
    page::Recording recording;
    page::Surface texte{page::SurfaceId::PictureTexte, 9000, metrics, recording};
    page::Surface illus{page::SurfaceId::PictureIllus, 2250, metrics, recording};
    page::Surface title{page::SurfaceId::Titre, 9000, metrics, recording};
    page::Surface printer{page::SurfaceId::Printer, 11000, metrics, recording};
    page::RichTextHolder holder;
    FakePictures pictures;
    markup::AnswerFields fields;
    bool isQuestion = false;
    markup::DrawingState state;
    markup::Renderer renderer{state, *this, pictures, recording};

    QString caption;
    QList<bool> busy;
    QList<int> refreshedAt;
    page::Surface* refreshed = nullptr;
    int preparations = 0;
    int videoFrames = 0;
};

/// Cases that draw a source and compare the operations.
class PageCase : public testing::TestWithParam<PageRow> {
protected:
    void draws() {
        PageBench bench;
        EXPECT_EQ(lines(bench.draw(QString::fromUtf16(GetParam().source))),
                  lines(GetParam().expected));
    }
};

} // namespace test_support
