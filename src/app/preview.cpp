#include "app/preview.h"

#include "coursetool/paths.h"
#include "look/picture_box.h"
#include "page/numbers.h"
#include "page/twips.h"
#include "preview/line_at.h"
#include "text/rounding.h"

#include <QApplication>
#include <QMouseEvent>

#include <cstdio>

namespace app {

namespace {

/// How long a window that stands over the page is waited for before it is looked at again.
constexpr int kAgainMs = 100;

/// What the strip leaves free at the right, in pixels: the page can be scrolled below it.
constexpr int kScrollBar = 20;

} // namespace

Preview::Preview(preview::PreviewedCourse& course, CourseReload& reload, viewer::Multim& window,
                 const coursedata::BoundRecord& record, const page::FontBook& fonts)
    : course_(course), reload_(reload), window_(window), record_(record), fonts_(fonts) {
    QWidget* const panel = window.pageArea().parentWidget()->parentWidget();
    strip_ = new preview::FaultStrip(panel->geometry().adjusted(1, 0, -kScrollBar, -1),
                                     panel->parentWidget());
    again_.setSingleShot(true);
    again_.setInterval(kAgainMs);
    connect(&again_, &QTimer::timeout, this, [this] { showCourse(); });
    qApp->installEventFilter(this);
    showFaults();
    watch_.emplace(QString::fromStdString(coursetool::shown(course.sources())),
                   [this] { sourcesChanged(); });
    // What was saved between the first build and the watch, nobody has told.
    QTimer::singleShot(0, this, [this] { sourcesChanged(); });
}

void Preview::sourcesChanged() {
    if (course_.update() != preview::PreviewedCourse::Renewed::Nothing)
        showCourse();
    showFaults();
}

void Preview::showCourse() {
    if (!reload_.run())
        again_.start();
}

void Preview::showFaults() {
    strip_->show(course_.remarks(), course_.sources());
}

bool Preview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    const auto& press = static_cast<QMouseEvent&>(*event);
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (!widget || press.button() != Qt::LeftButton || !(press.modifiers() & Qt::ControlModifier))
        return false;
    for (const page::SurfaceId surface :
         {page::SurfaceId::PictureTexte, page::SurfaceId::PictureIllus, page::SurfaceId::Titre}) {
        look::PictureBox& box = window_.box(surface);
        if (widget == &box || box.isAncestorOf(widget)) // a link stands on the page
            return writePlace(box, box.mapFromGlobal(press.globalPosition()));
    }
    return false;
}

bool Preview::writePlace(look::PictureBox& box, QPointF pixels) const {
    const QPointF twips = (pixels - QPointF(box.inset(), box.inset())) * page::kTwipsPerPixel;
    const int line = preview::lineAt(window_.shownPage(), box.surfaceId(), twips, fonts_);
    const auto number = text::toInt32(page::leadingNumber(record_.TextID));
    if (const auto place = number ? course_.placeOf(*number, line) : std::nullopt) {
        std::printf("%s:%d\n", place->file.c_str(), place->line);
        std::fflush(stdout);
    }
    return true;
}

} // namespace app
