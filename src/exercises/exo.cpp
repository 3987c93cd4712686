#include "exercises/exo.h"

#include "coursedata/databases.h"
#include "exercises/answer_panel.h"
#include "exercises/cjuste.h"
#include "exercises/placement.h"
#include "exercises/strip.h"
#include "exercises/summary.h"
#include "exercises/title_band_view.h"
#include "exercises/verdict_line.h"
#include "look/accessible_role.h"
#include "look/button.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/mnemonics.h"
#include "look/notice.h"
#include "look/page_panel.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/scroll_bar.h"
#include "look/tool_tip.h"
#include "page/surface_widths.h"
#include "platform/terminal.h"
#include "viewer/page_reader.h"

#include <QDir>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>

namespace exercises {

namespace {

using look::Button;

constexpr QSize kSize(800, 600);

constexpr QRect kBand(0, 0, 800, 64);
constexpr QRect kTito(6, 8, 576, 48);
constexpr QRect kStrip(8, 72, 152, 520);
constexpr QRect kTitle(176, 72, 464, 24);
constexpr QRect kCaption(176, 104, 464, 24);
/// Right of the longest caption, "Question 100 / 100 :".
constexpr QRect kVerdict(348, 102, 292, 22);
constexpr QRect kFrame1(168, 136, 624, 408);
constexpr int kViewHeight = 392;
constexpr QRect kSwitch(688, 20, 104, 24);

constexpr int kHeadingPx = 16;
/// The words on the main action are larger than those on the others.
constexpr int kValidatePx = look::kLabelPx;

QLabel* addLabel(const char* name, const QRect& place, QRgb ink, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setFont(look::interfaceFont(kHeadingPx, look::Weight::Bold));
    look::setInk(*label, ink);
    label->setGeometry(place);
    return label;
}

/// A label with a name of its own on a button that paints the words: what is clicked on it reaches
/// the button.
void addWords(const char* name, Button& button) {
    auto* label = new QLabel(&button);
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(QString::fromLatin1(name));
    label->setAccessibleName(button.plainCaption());
    label->setGeometry(40, 8, button.width() - 48, button.height() - 16);
}

} // namespace

Exo::Exo(const Parts& parts, QWidget& mainWindow)
    : QWidget(&mainWindow, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      parts_(parts), mainWindow_(mainWindow), blinkInterval_(RightAnswerBlink::kIntervalMs) {
    look::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("exo"));
    setWindowTitle(QStringLiteral("Exercices"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_QuitOnClose, false); // the program goes on in the main window
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor::fromRgb(look::kIvory));
    setPalette(colours);

    body_ = new QWidget(this);
    body_->setGeometry(QRect(QPoint(), kSize));
    addLabels();
    addQuestionArea();
    addButtons();
    addStrip();
    addReading();
    session_.emplace(
        SharedWithCourse{parts_.shared.PendingExerciseChapter, parts_.shared.ExerciseReturnPage},
        parts_.test, records_, *this, *answers_, parts_.course);
    if (parts_.author)
        addAuthoringSwitch();
    connectHandlers();
    new look::MnemonicDisplay(this);
    setFocus(); // the question takes it over as soon as it is drawn
}

/// The voice outlives the window, and must not come back to it.
Exo::~Exo() {
    stopReading();
}

void Exo::addLabels() {
    (new TitleBandView(body_))->setGeometry(kTito);
    Label2_ = addLabel("Label2", kTitle, look::kInk, body_);
    noa_ = addLabel("noa", kCaption, look::kBlue, body_);
    noa_->setAlignment(Qt::AlignTop);
    noa_->setContentsMargins(0, 1, 0, 0); // further from the question than from the title
    verdict_ = new VerdictLine(body_);
    verdict_->setGeometry(kVerdict);
}

void Exo::addQuestionArea() {
    frame1_ = new look::PagePanel(body_);
    frame1_->setObjectName(QStringLiteral("frame1"));
    frame1_->framekx().setObjectName(QStringLiteral("view"));
    frame1_->VScroll1().setObjectName(QStringLiteral("questionScroll"));
    frame1_->VScroll1().setAccessibleName(QStringLiteral("Défilement de la question"));
    frame1_->setGeometry(kFrame1);
    frame1_->setPanelHeight(kFrame1.height(), kViewHeight);
    Picture2_ = new look::PictureBox(page::SurfaceId::Picture2, page::kPageWidthPx, look::kPaper,
                                     parts_.fonts, question_.recording, frame1_);
    Picture2_->setObjectName(QStringLiteral("Picture2"));
    frame1_->setPage(Picture2_);
    summary_ = new Summary(body_);
    summary_->setGeometry(kFrame1);
    notice_ = new look::Notice(body_);
    notice_->setGeometry(kFrame1);
    answers_ = std::make_unique<AnswerPanel>(*Picture2_, parts_.fonts, question_);
}

void Exo::addButtons() {
    using Kind = Button::Kind;
    using Place = Button::IconPlace;
    const auto add = [this](const char* name, const char* caption, const char* toolTip,
                            const QRect& place, const Button::Look& shape) {
        auto* button = new Button(QString::fromUtf8(caption), shape, body_);
        button->setObjectName(QString::fromLatin1(name));
        look::setToolTip(*button, QString::fromUtf8(toolTip));
        button->setAccessibleDescription(button->toolTip());
        button->setGeometry(place);
        return button;
    };
    Command3_ = add("Command3", "Question précédente", "", {168, 552, 160, 40},
                    {.icon = QStringLiteral("previous-page")});
    command5_ =
        add("command5", "Valider la réponse", "", {336, 552, 176, 40},
            {.kind = Kind::Main, .icon = QStringLiteral("validate"), .weight = look::Weight::Bold});
    command5_->setFont(look::interfaceFont(kValidatePx, look::Weight::Bold));
    addWords("Label3", *command5_);
    bilan_ = add("bilan", "Bilan du test", "", command5_->geometry(),
                 {.kind = Kind::Main, .icon = QStringLiteral("summary")});
    bilan_->setFont(command5_->font());
    bilan_->hide();
    command6_ =
        add("command6", "Score", "", {520, 552, 104, 40}, {.icon = QStringLiteral("score")});
    addWords("Label5", *command6_);
    command4_ = add("command4", "Question suivante", "", {632, 552, 160, 40},
                    {.icon = QStringLiteral("next-page"), .place = Place::Right});
    Command7_ =
        add("Command7", "Calculatrice", "Machine à calculer", {656, 72, 64, 56},
            {.kind = Kind::Toolbar, .icon = QStringLiteral("calculator"), .place = Place::Top});
    Image2_ = add("Image2", "Fermer", "Fermer le test", {728, 72, 64, 56},
                  {.kind = Kind::Toolbar, .icon = QStringLiteral("close"), .place = Place::Top});
}

void Exo::addStrip() {
    Picture1_ = new Strip(parts_.test, body_);
    Picture1_->setGeometry(kStrip);
    // Beside the strip, not in it: at the ends of a long test it reaches over the strip's edge.
    Image4_ = new Marker(body_);
    Image4_->hide();
}

void Exo::addAuthoringSwitch() {
    Command1_ = new Button(QStringLiteral("Commutateur"), {.icon = {}}, body_);
    Command1_->setObjectName(QStringLiteral("Command1"));
    Command1_->setGeometry(kSwitch);
    source_ = new QPlainTextEdit(body_);
    source_->setObjectName(QStringLiteral("code"));
    source_->setAccessibleName(QStringLiteral("Texte de la question"));
    QFont font(QStringLiteral("Liberation Mono"));
    font.setPixelSize(look::kLabelPx);
    source_->setFont(font);
    source_->setTabChangesFocus(true);
    source_->setContextMenuPolicy(Qt::NoContextMenu); // Qt's own menu is not in French
    source_->setGeometry(kFrame1);
    source_->hide();
    edit_.emplace(records_.record(), parts_.messageBoxes);
}

void Exo::run() {
    start();
    loop_.exec();
    mainWindow_.activateWindow();
}

/// Once for each window: activated again, as when the calculator closes, it keeps what was answered
/// so far.
void Exo::start() {
    Form_Load();
    session_->activate();
    if (mainWindow_.isFullScreen()) {
        setFillsScreen(true);
    } else {
        place();
        show();
    }
    activateWindow();
}

void Exo::Form_Load() {
    coursedata::ExerciseTables tables = coursedata::openExerciseTables(parts_.shared.InstallDir);
    for (const QString& failure : std::as_const(tables.failures))
        platform::tellOnTerminal(failure);
    if (tables.failures.isEmpty())
        notice_->hide(); // an author may have mended them
    else
        tellUnreadable(tables.failures);
    records_.read(std::move(tables));
    session_->load();
}

bool Exo::reload() {
    if (popup_ || asking_ || leaving_ || (source_ && source_->isVisible()))
        return false;
    const GivenAnswer given = answers_->given();
    const std::int16_t question = parts_.test.CurrentQuestion;
    writable_ = false;
    Form_Load();
    session_->activate();
    if (parts_.test.CurrentQuestion == question && isUnanswered(parts_.test, question))
        answers_->give(given);
    return true;
}

/// The window stays usable, to be closed at least.
void Exo::tellUnreadable(QStringList reasons) {
    reasons.removeDuplicates(); // both tables stand in one file
    const QString file = QDir::toNativeSeparators(parts_.shared.InstallDir +
                                                  QString::fromLatin1(coursedata::kExerciseFile));
    QStringList paragraphs{QStringLiteral("Fichier\u00A0: ") + file};
    for (const QString& reason : reasons)
        paragraphs.append(QStringLiteral("Cause\u00A0: ") + reason);
    paragraphs.append(QStringLiteral("Réinstallez le cours, ou remplacez ce fichier par une copie "
                                     "intacte, puis rouvrez le test. Les pages du cours restent "
                                     "lisibles."));
    notice_->tell(QStringLiteral("Les tests de ce cours ne peuvent pas être lus."), paragraphs);
}

/// Opens the tables again, to be written; read-only ones stay where that cannot be.
void Exo::makeWritable() {
    if (writable_)
        return;
    coursedata::ExerciseTables fresh =
        coursedata::openExerciseTables(parts_.shared.InstallDir, coursedata::Access::Writable);
    if (!fresh.description || !fresh.contenu)
        return;
    writable_ = true;
    records_.read(std::move(fresh));
    session_->findRecord();
}

void Exo::setFillsScreen(bool fills) {
    if (fills) {
        setMinimumSize(kSize);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        showFullScreen();
    } else {
        showNormal();
        place();
    }
}

void Exo::place() {
    if (!liesOverMainWindow(parts_.screen)) {
        setFixedSize(kSize);
        return; // the window system finds a place
    }
    setFixedSize(mainWindow_.size().expandedTo(kSize));
    move(mainWindow_.pos());
}

void Exo::resizeEvent(QResizeEvent*) {
    // Where the window is larger than its contents they stand in its middle.
    body_->move((width() - body_->width()) / 2, (height() - body_->height()) / 2);
}

void Exo::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(kBand.translated(body_->pos()), QColor::fromRgb(look::kBlue));
}

} // namespace exercises
