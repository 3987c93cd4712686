#pragma once

#include "app/course_reload.h"
#include "page/faces/font_book.h"
#include "preview/fault_strip.h"
#include "preview/linter.h"
#include "preview/previewed_course.h"
#include "preview/source_watch.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

namespace app {

/// The shell on sources: what is saved there is shown, what is wrong stands on a strip, and a click
/// with Ctrl on the page writes the place in the sources, "FILE:LINE", to standard output.
class Preview : public QObject {
public:
    /// All must outlive it.
    Preview(preview::PreviewedCourse& course, CourseReload& reload, viewer::Multim& window,
            const coursedata::BoundRecord& record, const page::FontBook& fonts);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sourcesChanged();
    void showCourse();
    void showFaults();
    void lookOn();
    bool writePlace(look::PictureBox& box, QPointF pixels) const;

    preview::PreviewedCourse& course_;
    CourseReload& reload_;
    viewer::Multim& window_;
    const coursedata::BoundRecord& record_;
    const page::FontBook& fonts_;
    preview::FaultStrip* strip_;
    QTimer again_;
    preview::Linter linter_;
    QTimer lookOn_; ///< when there is nothing else to do
    std::optional<preview::SourceWatch> watch_;
};

} // namespace app
