#include "app/preview.h"

#include "check/write_findings.h"
#include "coursetool/paths.h"
#include "look/picture_box.h"
#include "page/numbers.h"
#include "page/twips.h"
#include "preview/line_at.h"
#include "text/rounding.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
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
    : course_(course), reload_(reload), window_(window), record_(record), fonts_(fonts),
      linter_(course.sources(), fonts) {
    QWidget* const panel = window.pageArea().parentWidget()->parentWidget();
    strip_ = new preview::FaultStrip(panel->geometry().adjusted(1, 0, -kScrollBar, -1),
                                     panel->parentWidget());
    again_.setSingleShot(true);
    again_.setInterval(kAgainMs);
    connect(&again_, &QTimer::timeout, this, [this] { showCourse(); });
    lookOn_.setSingleShot(true);
    connect(&lookOn_, &QTimer::timeout, this, [this] { lookOn(); });
    qApp->installEventFilter(this);
    showFaults();
    linter_.follow(course.records(), true);
    lookOn_.start();
    watch_.emplace(QString::fromStdString(coursetool::shown(course.sources())),
                   [this] { sourcesChanged(); });
    // What was saved between the first build and the watch, nobody has told.
    QTimer::singleShot(0, this, [this] { sourcesChanged(); });
}

void Preview::sourcesChanged() {
    using Renewed = preview::PreviewedCourse::Renewed;
    const Renewed renewed = course_.update();
    if (renewed != Renewed::Nothing)
        showCourse();
    showFaults();
    // The page comes first.
    linter_.follow(course_.records(), renewed == Renewed::PagesAndFiles);
    lookOn_.start();
}

void Preview::lookOn() {
    if (linter_.lookOn())
        lookOn_.start();
    else
        showFaults();
}

void Preview::showCourse() {
    if (!reload_.run())
        again_.start();
}

void Preview::showFaults() {
    using coursetool::Remark;
    std::vector<Remark> remarks = course_.remarks();
    // While a fault keeps the course from being shown, what the rules would say can wait.
    if (std::none_of(remarks.begin(), remarks.end(),
                     [](const Remark& remark) { return remark.kind != Remark::Kind::Warning; }))
        for (const check::Finding& finding : linter_.findings())
            remarks.push_back({Remark::Kind::Warning, finding.place, check::withCode(finding)});
    // Those of the page that is being looked at come first.
    const auto number = text::toInt32(page::leadingNumber(record_.TextID));
    const auto shown = number ? course_.placeOf(*number, 0) : std::nullopt;
    std::stable_partition(remarks.begin(), remarks.end(), [&](const Remark& remark) {
        return shown && remark.place.file == shown->file;
    });
    strip_->show(remarks, course_.sources());
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
