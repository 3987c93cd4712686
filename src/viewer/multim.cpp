#include "viewer/multim.h"

#include "coursedata/page_index.h"
#include "look/accessible_role.h"
#include "look/button.h"
#include "look/ink_rim.h"
#include "look/mnemonics.h"
#include "look/notice.h"
#include "look/page_panel.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/program_icon.h"
#include "look/zoom.h"
#include "page/course_name.h"
#include "page/surface_widths.h"
#include "page/twips.h"
#include "platform/file_names.h"
#include "viewer/chapter_bar.h"
#include "viewer/cover.h"
#include "viewer/find_bar.h"
#include "viewer/page_code.h"
#include "viewer/page_finder.h"
#include "viewer/page_reader.h"
#include "viewer/page_selection.h"
#include "viewer/rail.h"
#include "viewer/toolbar.h"
#include "viewer/video_frame.h"

#include <QCoreApplication>
#include <QDir>

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
    look::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("multim"));
    setWindowTitle(page::kCourseName);
    resize(kWindowSize);
    setMinimumSize(kWindowSize);
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
}

Multim::~Multim() = default;

void Multim::attach(const Parts& parts) {
    parts_.emplace(parts);
    beReadBy(parts.collaborators.reading);
}

void Multim::addControls() {
    body_ = new QWidget(this);
    body_->setGeometry(QRect(QPoint(), kWindowSize));
    toolbar_ = new Toolbar(body_);
    toolbar_->setGeometry(kToolbar);

    titre_ = new look::PictureBox(SurfaceId::Titre, page::kTitleWidthPx, look::kIvory, fonts_,
                                  shown_.recording, body_);
    titre_->setObjectName(QStringLiteral("titre"));
    titre_->setGeometry(kTitle);
    new look::InkRim(*titre_, body_);

    panel_ = new look::PagePanel(body_);
    panel_->setGeometry(kPanel);
    PictureTEXTE_ = new look::PictureBox(SurfaceId::PictureTexte, page::kPageWidthPx, look::kPaper,
                                         fonts_, shown_.recording, panel_);
    PictureTEXTE_->setObjectName(QStringLiteral("PictureTEXTE"));
    panel_->setPage(PictureTEXTE_);
    // A click in the page gives it the keyboard, also below a page that is shorter than the view.
    PictureTEXTE_->setFocusPolicy(Qt::StrongFocus);
    panel_->framekx().setFocusPolicy(Qt::ClickFocus);
    panel_->framekx().setFocusProxy(PictureTEXTE_);
    auto* findBar = new FindBar(panel_);
    videoFrame_ = new VideoFrame(body_);

    rail_ = new Rail(body_);
    rail_->setGeometry(kRail);
    PICTUREILLUS_ = new look::PictureBox(SurfaceId::PictureIllus, page::kIllustrationWidthPx,
                                         look::kPaper, fonts_, shown_.recording, rail_);
    PICTUREILLUS_->setObjectName(QStringLiteral("PICTUREILLUS"));
    PICTUREILLUS_->setAccessibleName(QStringLiteral("Illustration de la page"));
    rail_->setIllustration(PICTUREILLUS_);

    Framebase_ = new ChapterBar(body_);
    Framebase_->setGeometry(kFramebase);
    cover_ = new Cover(body_);
    cover_->setGeometry(kPanel);
    cover_->hide();

    finder_ = std::make_unique<PageFinder>(PageFinder::Parts{
        *findBar, *panel_, {PictureTEXTE_, PICTUREILLUS_, titre_}, shown_.recording, fonts_});
    selection_ = new PageSelection(
        *PictureTEXTE_, *panel_, fonts_,
        {[this] { return parts_ ? pageCode(parts_->pages.record().TextID.toInt()) : QString(); },
         [this] { return parts_ && parts_->collaborators.reading.isReading(); },
         [this] { perform(KeyCommand::ReadAloud); }});
    setVideoLayout(videoLayout_);
    panel_->fitView();
    button("Command2").setLastingMnemonic(u'S');
    setPrintable(false);
}

/// Where the window is larger than its contents they stand in its middle.
void Multim::layOut() {
    body_->move(qMax(0, (width() - kWindowSize.width()) / 2),
                qMax(0, (height() - kWindowSize.height()) / 2));
}

bool Multim::Form_Load() {
    if (!parts_)
        return false;
    working_ = true;
    if (!parts_->startUp())
        return false;
    prepareAreas();
    showCover();
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
    if (shell::hasNoRoomForAFrame(screen_))
        parts_->zoom.fillScreenForGood();
    else
        show();
}

/// False when the window was closed meanwhile.
bool Multim::buildIndex() {
    showHourglass();
    pumpPendingMessages();
    const coursedata::Recordset* records = parts_->pages.record().records();
    if (!closeRequested_ && records)
        buildPageIndex(*records, state_, [this] { pumpPendingMessages(); });
    restorePointer();
    return !closeRequested_;
}

void Multim::showFirstPage() {
    parts_->actions.run(QStringLiteral("PAG001"));
    setPageVisible(true);
    if (!notice_)
        takeFocusToPage();
    // Only the window manager shows it, and reading it takes as long as a page: after the page.
    QTimer::singleShot(0, this, [this] { setWindowIcon(look::programIcon()); });
}

void Multim::setWidth(double twips) {
    resize(qRound(twips / page::kTwipsPerPixel), height());
}

void Multim::pumpPendingMessages() {
    QCoreApplication::processEvents();
    showPointer(); // the window may have come on the screen
}

void Multim::report(const QString& line) {
    Framebase_->showLine(look::OutcomeLine::Kind::Warning, line);
}

void Multim::tellPrinted(const QString& line, const std::function<void()>& show) {
    Framebase_->showLine(look::OutcomeLine::Kind::Done, line,
                         {show ? QStringLiteral("Ouvrir") : QString(), show});
}

void Multim::tellUnreadable(const QString& file, const QString& reason) {
    notice_ = new look::Notice(body_);
    notice_->setGeometry(kPanel);
    notice_->tell(
        QStringLiteral("Ce cours ne peut pas être lu."),
        {QStringLiteral("Fichier\u00A0: ") + QDir::toNativeSeparators(file),
         QStringLiteral("Cause\u00A0: ") + reason,
         QStringLiteral("Réinstallez le cours, ou remplacez ce fichier par une copie intacte, puis "
                        "relancez Orvalente. S’il reste illisible, prévenez la personne qui l’a "
                        "préparé.")});
}

} // namespace viewer
