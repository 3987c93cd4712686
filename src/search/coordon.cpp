#include "search/coordon.h"

#include "coursedata/course_directory.h"
#include "jet/database_file.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/check_box.h"
#include "look/enter_once.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/list_box.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/progress_bar.h"
#include "look/reading_text.h"
#include "look/text_field.h"
#include "page/twips.h"
#include "platform/file_names.h"
#include "search/result_words.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>

#include <algorithm>

namespace search {

using look::Button;

namespace {

constexpr int kWidth = 480;
/// With the extract beside the list; the height is as told.
constexpr int kWideWidth = 784;
constexpr auto kLowHeight = static_cast<int>(1980 / page::kTwipsPerPixel);
constexpr auto kHighHeight = static_cast<int>(4200 / page::kTwipsPerPixel);

constexpr QRect kPrompt(16, 8, 336, 22);
constexpr QRect kWords(16, 32, 336, 28);
constexpr QPoint kAllWords(16, 70);
constexpr QPoint kAccents(152, 70);
constexpr QRect kSearchButton(360, 32, 104, 28);
constexpr QRect kCancelButton(360, 68, 104, 28);
constexpr QRect kNotice(16, 103, 448, 20);
constexpr QRect kProgress(16, 109, 448, 8);
constexpr QRect kList(16, 128, 336, 136);
constexpr QRect kShowButton(360, 128, 104, 28);
constexpr QRect kAgainButton(16, 98, 448, 28);
constexpr QRect kExtractTitle(480, 8, 288, 22);
constexpr QRect kExtract(480, 32, 288, 232);
constexpr double kExtractMargin = 7;
constexpr int kHintGap = 10;

/// So few pages found may be due to an accent.
constexpr std::size_t kFewPages = 2;

/// The bar moves smoothly, and in an ordinary course all is found before it would show.
constexpr int kTurnMs = 20;

QLabel* newLabel(const QString& caption, const QRect& place, look::Weight weight, QWidget* window) {
    auto* label = new QLabel(caption, window);
    label->setTextFormat(Qt::PlainText);
    label->setFont(look::interfaceFont(look::kLabelPx, weight));
    look::setInk(*label, look::kInk);
    label->setGeometry(place);
    return label;
}

std::optional<SearchablePages> searchablePages(const QString& installDir) {
    const auto file = coursedata::findCourseDatabase(installDir);
    if (!file)
        return std::nullopt;
    const auto database = jet::openDatabase(platform::standardPath(*file));
    if (!database)
        return std::nullopt;
    auto pages = SearchablePages::open(*database);
    return pages ? std::optional(std::move(*pages)) : std::nullopt;
}

} // namespace

Coordon::Coordon(shell::SharedState& state, LastSearch& last, const page::FontBook& fonts,
                 QWidget* mainWindow)
    : QDialog(mainWindow, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                              Qt::WindowCloseButtonHint),
      state_(state), last_(last), extract_(state.InstallDir, fonts), turnMs_(kTurnMs) {
    setObjectName(QStringLiteral("coordon"));
    setWindowTitle(QStringLiteral("Rechercher"));
    setWindowModality(Qt::WindowModal);
    addControls();
    new look::MnemonicDisplay(this);
    new look::EnterOnce(this); // held down after a search, Enter opens no page
    Form_Load();
}

Coordon::~Coordon() = default;

void Coordon::addControls() {
    const QString prompt = QStringLiteral("Saisir le(s) mot(s) à rechercher :");
    newLabel(prompt, kPrompt, look::Weight::Regular, this);
    Text1_ = new look::TextField(this);
    Text1_->setFont(look::interfaceFont(look::kLabelPx));
    Text1_->setAccessibleName(prompt);
    Text1_->setGeometry(kWords);

    const auto addBox = [this](const QString& caption, QPoint place) {
        auto* box = new look::CheckBox(caption, this);
        box->setGeometry(QRect(place, box->sizeHint()));
        return box;
    };
    Checkmots_ = addBox(QStringLiteral("&Tous les mots"), kAllWords);
    accents_ = addBox(QStringLiteral("&Ignorer les accents"), kAccents);

    Label2_ = newLabel(noticeOfNone(true), kNotice, look::Weight::Bold, this);
    count_ = newLabel({}, kNotice, look::Weight::Regular, this);
    hint_ = newLabel({}, kNotice, look::Weight::Regular, this);
    look::setInk(*hint_, look::kMuted);
    Pbar1_ = new look::ProgressBar(this);
    Pbar1_->setAccessibleName(QStringLiteral("Recherche en cours"));
    Pbar1_->setGeometry(kProgress);
    List2_ = new look::ListBox(this);
    List2_->setAccessibleName(QStringLiteral("Pages trouvées"));
    List2_->setModel(&found_);
    List2_->setGeometry(kList);

    const auto addButton = [this](const QString& caption, QChar key, const QRect& place) {
        auto* button = new Button(caption, {}, this);
        button->setLastingMnemonic(key);
        button->setGeometry(place);
        return button;
    };
    Command2_ = addButton(QStringLiteral("Rechercher"), u'R', kSearchButton);
    Command1_ = addButton(QStringLiteral("Annuler"), u'N', kCancelButton);
    Command3_ = addButton(QStringLiteral("Afficher"), u'A', kShowButton);
    addLastSearch();
    addExtract();
    nameControls();
    orderFocus();
    connectHandlers();
}

void Coordon::addLastSearch() {
    again_ = new Button({}, {.icon = QStringLiteral("retry")}, this);
    if (last_.typed.isEmpty()) {
        again_->hide();
        return;
    }
    const QString caption = QStringLiteral("Reprendre\u00A0: ") + last_.typed.simplified();
    const int room = kAgainButton.width() - again_->sizeHint().width();
    const QString shown = again_->fontMetrics().elidedText(caption, Qt::ElideRight, room);
    again_->setCaption(QString(shown).replace(u'&', QStringLiteral("&&")));
    again_->setAccessibleName(caption);
    again_->setGeometry(QRect(
        kAgainButton.topLeft(),
        QSize(std::min(again_->sizeHint().width(), kAgainButton.width()), kAgainButton.height())));
}

void Coordon::addExtract() {
    extractTitle_ = newLabel(QStringLiteral("Extrait de la page :"), kExtractTitle,
                             look::Weight::Regular, this);
    extractText_ = new look::ReadingText(kExtractMargin, this);
    extractText_->setAccessibleName(QStringLiteral("Extrait de la page"));
    extractText_->setGeometry(kExtract.marginsRemoved(look::kInsideFrame));
}

void Coordon::nameControls() {
    for (const auto& [control, name] : {std::pair<QWidget*, const char*>{Text1_, "Text1"},
                                        {Checkmots_, "Checkmots"},
                                        {accents_, "accents"},
                                        {Label2_, "Label2"},
                                        {Pbar1_, "Pbar1"},
                                        {count_, "count"},
                                        {hint_, "hint"},
                                        {again_, "again"},
                                        {extractText_, "extract"},
                                        {List2_, "List2"},
                                        {Command1_, "Command1"},
                                        {Command2_, "Command2"},
                                        {Command3_, "Command3"}})
        control->setObjectName(QString::fromLatin1(name));
}

void Coordon::orderFocus() {
    QWidget* const order[] = {Text1_,    Command2_, Checkmots_, accents_,    again_,
                              Command1_, List2_,    Command3_,  extractText_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void Coordon::connectHandlers() {
    connect(Command1_, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command2_, &QPushButton::clicked, this, &Coordon::Command2_Click);
    connect(Command3_, &QPushButton::clicked, this, &Coordon::Command3_Click);
    connect(List2_, &QListView::doubleClicked, this, &Coordon::List2_DblClick);
    connect(List2_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& line) {
                Command3_->setEnabled(line.isValid());
                showExtract(line);
            });
    connect(again_, &QPushButton::clicked, this, &Coordon::searchAgain);
}

void Coordon::Form_Load() {
    state_.SearchChosenPage = 0;
    Pbar1_->hide();
    Label2_->hide();
    say({}, {});
    showList(false);
    Text1_->setFocus();
}

void Coordon::Command2_Click() {
    if (search_)
        return;
    Query query{queryWords(Text1_->text().toStdU16String()), Checkmots_->isChecked(),
                accents_->isChecked()};
    if (query.words.empty()) {
        // Nothing else happens, and what was found before stays.
        again_->hide();
        say(Label2_->isHidden() ? QString() : Label2_->text(),
            QStringLiteral("Saisissez au moins deux caractères."));
        return;
    }
    query_ = query;
    last_ = {Text1_->text(), query.allWords, query.ignoreAccents};
    again_->hide();
    // Not before, as a share that hangs would hold the window back; again, as one may be back.
    if (!isCourseRead())
        pages_ = searchablePages(state_.InstallDir);
    // Nothing of a course that cannot be opened is found.
    if (!pages_) {
        showFound({});
        return;
    }
    search_.emplace(*pages_, std::move(query));
    found_.setPages({});
    Command3_->setEnabled(false); // the list does not tell that its line has gone
    extractText_->clear();
    // The bar goes from the second record to the last, the only one of a short table included.
    Pbar1_->setRange(1, std::max(1, pages_->lastPosition()));
    Pbar1_->setValue(1);
    Pbar1_->show();
    Label2_->hide();
    say({}, {});
    searchOn();
}

/// Whether nothing of the course has been passed over so far because it cannot be read.
bool Coordon::isCourseRead() const {
    return pages_ && pages_->problems().empty();
}

/// Searches for a turn of the window's loop.
void Coordon::searchOn() {
    QElapsedTimer turn;
    turn.start();
    while (search_->advance()) {
        if (turn.elapsed() < turnMs_)
            continue;
        Pbar1_->setValue(std::max(1, search_->position()));
        turns_.start(0, this);
        return;
    }
    turns_.stop();
    std::vector<FoundPage> pages = search_->found();
    search_.reset();
    showFound(std::move(pages));
}

void Coordon::timerEvent(QTimerEvent* event) {
    if (event->timerId() == turns_.timerId())
        searchOn();
    else
        QDialog::timerEvent(event);
}

void Coordon::showFound(std::vector<FoundPage> pages) {
    const std::size_t count = pages.size();
    const bool some = count > 0;
    // In the order of the course; behind them those on which nobody reads the words.
    const auto hidden = std::stable_partition(pages.begin(), pages.end(),
                                              [](const FoundPage& page) { return !page.hidden; });
    const bool isRead = isCourseRead();
    const QString result =
        resultWords({count, static_cast<std::size_t>(pages.end() - hidden), isRead});
    Label2_->setText(noticeOfNone(isRead));
    found_.setPages(std::move(pages));
    Pbar1_->hide();
    Label2_->setVisible(!some);
    showList(some);
    say(some ? result : Label2_->text(),
        isRead && count <= kFewPages && !query_->ignoreAccents
            ? QStringLiteral("Essayez «\u00A0Ignorer les accents\u00A0».")
            : QString());
    if (!some)
        return;
    // Screen readers are told of a line that becomes the current one in a list with the keyboard.
    List2_->setFocus();
    List2_->selectionModel()->clearCurrentIndex();
    List2_->setCurrentIndex(found_.index(0));
}

/// The list with its button, and the window as tall as that needs. The blue button is the one that
/// is likely to be wanted next.
void Coordon::showList(bool shown) {
    List2_->setVisible(shown);
    Command3_->setVisible(shown);
    Command2_->setKind(shown ? Button::Kind::Ordinary : Button::Kind::Main);
    Command3_->setKind(Button::Kind::Main);
    const int before = width();
    setFixedSize(shown ? kWideWidth : kWidth, shown ? kHighHeight : kLowHeight);
    if (isVisible() && width() != before)
        keepMiddle(before);
}

/// Grown or shrunk from `before` pixels, the window stays where it is to the eye, and on the
/// screen.
void Coordon::keepMiddle(int before) {
    const QRect room = screen()->availableGeometry();
    const int left = std::clamp(x() - (width() - before) / 2, room.left(),
                                std::max(room.left(), room.right() + 1 - width()));
    move(left, y());
}

/// What came of a search, and what could be tried, on the line below the boxes. That nothing was
/// found, `Label2` says itself.
void Coordon::say(const QString& result, const QString& hint) {
    count_->setText(result);
    count_->setVisible(!result.isEmpty() && Label2_->isHidden());
    const QLabel& left = Label2_->isHidden() ? *count_ : *Label2_;
    const int taken =
        result.isEmpty() ? 0 : left.fontMetrics().horizontalAdvance(result) + kHintGap;
    hint_->setGeometry(kNotice.adjusted(taken, 0, 0, 0));
    hint_->setText(hint);
    hint_->setVisible(!hint.isEmpty());
    look::announce(*this, result);
    look::announce(*this, hint);
}

void Coordon::showExtract(const QModelIndex& line) {
    extractText_->setHtml(
        line.isValid() && query_ ? extract_.html(found_.page(line).position, *query_) : QString());
}

void Coordon::searchAgain() {
    Text1_->setText(last_.typed);
    Checkmots_->setChecked(last_.allWords);
    accents_->setChecked(last_.ignoreAccents);
    Command2_Click();
}

void Coordon::Command3_Click() {
    choose(List2_->currentIndex());
}

void Coordon::List2_DblClick(const QModelIndex& line) {
    choose(line);
}

void Coordon::choose(const QModelIndex& line) {
    if (!line.isValid())
        return;
    state_.SearchChosenPage = found_.pageNumber(line);
    accept();
}

void Coordon::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A button takes the key itself.
        if (Text1_->hasFocus())
            Command2_Click();
        else if (List2_->hasFocus())
            choose(List2_->currentIndex());
        return;
    case Qt::Key_Down:
        // From the words straight to what was found.
        if (Text1_->hasFocus() && List2_->isVisible())
            List2_->setFocus();
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void Coordon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kIvory));
    if (List2_->isVisible())
        extractText_->paintFrame(painter, kExtract, 3, look::kEdge);
}

} // namespace search
