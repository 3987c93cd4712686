#include "viewer/multim.h"

#include "coursedata/page_index.h"
#include "look/button.h"
#include "look/ink_rim.h"
#include "look/mnemonics.h"
#include "look/page_panel.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/program_icon.h"
#include "look/surface_widths.h"
#include "page/course_name.h"
#include "page/twips.h"
#include "platform/file_names.h"
#include "viewer/chapter_bar.h"
#include "viewer/cover.h"
#include "viewer/find_bar.h"
#include "viewer/page_finder.h"
#include "viewer/rail.h"
#include "viewer/toolbar.h"
#include "viewer/video_frame.h"

#include <QCoreApplication>

namespace viewer {

namespace {

using page::SurfaceId;

constexpr QRect kToolbar(0, 0, 800, 64);
constexpr QRect kRail(8, 72, 152, 520);
constexpr QRect kTitle(176, 72, 600, 32);
constexpr QRect kPanel(168, 112, 624, 440);
constexpr QRect kFramebase(168, 560, 624, 32);

/// How long a window takes at most to get the size it asked for.
constexpr int kSettledMs = 500;

} // namespace

Multim::Multim(shell::SharedState& state, const page::FontBook& fonts,
               const platform::Screen& screen)
    : state_(state), fonts_(fonts), screen_(screen), sizeRule_(state, screen) {
    setObjectName(QStringLiteral("multim"));
    setWindowTitle(page::kCourseName);
    resize(kWindowSize);
    setMinimumSize(kWindowSize - QSize(0, kMostRowsLacking));
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor::fromRgb(look::kIvory));
    setPalette(colours);
    addControls();
    connectHandlers();
    watchPointer();
    new look::MnemonicDisplay(this);
    sizeSettled_.setSingleShot(true);
    sizeSettled_.setInterval(kSettledMs);
    connect(&sizeSettled_, &QTimer::timeout, this, [this] { sizeRule_.settled(present()); });
    // No button is chosen from the start; the Tab key leads to the first.
    setFocus();
}

Multim::~Multim() = default;

void Multim::attach(const Parts& parts) {
    parts_.emplace(parts);
}

void Multim::addControls() {
    body_ = new QWidget(this);
    body_->setGeometry(QRect(QPoint(), kWindowSize));
    toolbar_ = new Toolbar(body_);
    toolbar_->setGeometry(kToolbar);

    titre_ = new look::PictureBox(SurfaceId::Titre, look::kTitleWidthPx, look::kIvory, fonts_,
                                  recording_, body_);
    titre_->setGeometry(kTitle);
    new look::InkRim(*titre_, body_);

    panel_ = new look::PagePanel(body_);
    panel_->setGeometry(kPanel);
    PictureTEXTE_ = new look::PictureBox(SurfaceId::PictureTexte, look::kPageWidthPx, look::kPaper,
                                         fonts_, recording_, panel_);
    panel_->setPage(PictureTEXTE_);
    // A click in the page gives it the keyboard, also below a page that is shorter than the view.
    PictureTEXTE_->setFocusPolicy(Qt::StrongFocus);
    panel_->framekx().setFocusPolicy(Qt::ClickFocus);
    panel_->framekx().setFocusProxy(PictureTEXTE_);
    auto* findBar = new FindBar(panel_);
    videoFrame_ = new VideoFrame(body_);

    rail_ = new Rail(body_);
    PICTUREILLUS_ = new look::PictureBox(SurfaceId::PictureIllus, look::kIllustrationWidthPx,
                                         look::kPaper, fonts_, recording_, rail_);
    PICTUREILLUS_->setAccessibleName(QStringLiteral("Illustration de la page"));
    rail_->setIllustration(PICTUREILLUS_);

    Framebase_ = new ChapterBar(body_);
    cover_ = new Cover(body_);
    cover_->hide();

    finder_ = std::make_unique<PageFinder>(PageFinder::Stage{
        *findBar, *panel_, {PictureTEXTE_, PICTUREILLUS_, titre_}, recording_, fonts_});
    layOut();
    button("Command2").setLastingMnemonic(u'S');
    setPrintable(false);
}

/// Where the window is larger than its contents they stand in its middle; rows that it lacks are
/// taken from the page's view and from the illustration area.
void Multim::layOut() {
    rowsLacking_ = qBound(0, kWindowSize.height() - height(), kMostRowsLacking);
    const QSize size = kWindowSize - QSize(0, rowsLacking_);
    body_->setGeometry(qMax(0, (width() - size.width()) / 2),
                       qMax(0, (height() - size.height()) / 2), size.width(), size.height());
    rail_->place(kRail.adjusted(0, 0, 0, -rowsLacking_));
    Framebase_->setGeometry(kFramebase.translated(0, -rowsLacking_));
    cover_->setGeometry(kPanel.adjusted(0, 0, 0, -rowsLacking_));
    setVideoLayout(videoLayout_);
    panel_->fitView();
}

bool Multim::Form_Load() {
    if (!parts_)
        return false;
    working_ = true;
    if (!parts_->startUp())
        return false;
    prepareAreas();
    showCover();
    setUpRenderer();
    if (!buildIndex())
        return false;
    cover_->hide();
    showFirstPage();
    working_ = false;
    return !closeRequested_;
}

void Multim::prepareAreas() {
    setPageVisible(false);
    setVideoLayout(VideoLayout::None);
}

void Multim::showCover() {
    const auto picture = platform::findWithoutCase(state_.InstallDir, QStringLiteral("couv1.jpg"));
    cover_->setPicture(picture.value_or(QString()));
    cover_->raise();
    cover_->show();
    // What sized the window so far was start-up itself: from here on a resize counts.
    startUpDone_ = true;
    // With its frame it would reach beyond a screen no higher than itself.
    if (shell::isTooLowForAFrame(screen_) && !shell::isWideEnoughToCentre(screen_))
        showMaximized();
    else
        show();
}

void Multim::setUpRenderer() {
    markup::DrawingState& drawing = parts_->renderer.state();
    drawing.surfaceDessin = &pictureTexte();
    drawing.fenetreSource = this;
    parts_->renderer.initecran();
}

/// False when the window was closed meanwhile.
bool Multim::buildIndex() {
    showHourglass();
    pumpPendingMessages();
    if (!closeRequested_ && parts_->pages.records())
        buildPageIndex(*parts_->pages.records(), state_, [this] { pumpPendingMessages(); });
    restorePointer();
    return !closeRequested_;
}

void Multim::showFirstPage() {
    parts_->actions.run(QStringLiteral("PAG001"));
    setPageVisible(true);
    // Only the window manager shows it, and reading it takes as long as a page: after the page.
    QTimer::singleShot(0, this, [this] { setWindowIcon(look::programIcon()); });
}

void Multim::shareLinkCursor() {
    parts_->neighbours.links.shareCursor();
}

void Multim::setWidth(double twips) {
    resize(qRound(twips / page::kTwipsPerPixel), height());
}

void Multim::place(const shell::Placement& placement) {
    const auto pixels = [](double twips) { return qRound(twips / page::kTwipsPerPixel); };
    const QSize size(pixels(placement.width), pixels(placement.height));
    // The window manager then offers neither to resize nor to maximise it.
    setFixedSize(size);
    resize(size);
    move(pixels(placement.left), pixels(placement.top));
}

void Multim::pumpPendingMessages() {
    QCoreApplication::processEvents();
    showPointer(); // the window may have come on the screen
}

void Multim::report(const QString& line) {
    Framebase_->showStatus(line);
}

} // namespace viewer
