#pragma once

#include "markup/draw_page.h"
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

/// Draws sources one after the other, as the program does, in letters whose widths are plain.
class PageBench : public markup::DrawingWatcher {
public:
    /// Draws a source whose lines are given with "\n" and gives the operations, a line each.
    QStringList draw(QString source) {
        return drawAsItIs(source.replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
    }
    QStringList drawAsItIs(const QString& source) {
        markup::drawPage({source, as, title, startsAt}, {state, pictures, metrics, this}, page);
        return describe(page.recording);
    }

    double heightPx(page::SurfaceId surface) const { return page.heightPx(surface); }

    void setBusy(bool on) override { busy.append(on); }
    void refresh(page::SurfaceId surface) override {
        refreshedAt.append(static_cast<int>(page.recording.size()));
        refreshed.append(surface);
    }

    FixedMetrics metrics;
    FakePictures pictures;
    markup::DrawingState state;
    markup::DrawnAs as = markup::DrawnAs::CoursePage;
    QString title;
    std::int32_t startsAt = 0;
    markup::DrawnPage page;

    QList<bool> busy;
    QList<int> refreshedAt; ///< numbers of operations
    QList<page::SurfaceId> refreshed;
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
