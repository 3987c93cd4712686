#include "search/coordon.h"

#include "coursedata/course_directory.h"
#include "jet/database_file.h"
#include "look/button.h"
#include "look/check_box.h"
#include "look/enter_once.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/list_box.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/progress_bar.h"
#include "look/text_field.h"
#include "page/twips.h"
#include "platform/file_names.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimerEvent>

#include <algorithm>

namespace search {

using look::Button;

namespace {

constexpr int kWidth = 480;
constexpr auto kLowHeight = static_cast<int>(1980 / page::kTwipsPerPixel);
constexpr auto kHighHeight = static_cast<int>(4200 / page::kTwipsPerPixel);

constexpr QRect kPrompt(16, 8, 336, 22);
constexpr QRect kWords(16, 32, 336, 28);
constexpr QPoint kAllWords(16, 72);
constexpr QPoint kAccents(152, 72);
constexpr QRect kSearchButton(360, 32, 104, 28);
constexpr QRect kCancelButton(360, 68, 104, 28);
constexpr QRect kNotice(16, 103, 448, 20);
constexpr QRect kProgress(16, 109, 448, 8);
constexpr QRect kList(16, 128, 336, 136);
constexpr QRect kShowButton(360, 128, 104, 28);

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

Coordon::Coordon(shell::SharedState& state, QWidget* mainWindow)
    : QDialog(mainWindow, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                              Qt::WindowCloseButtonHint),
      state_(state), turnMs_(kTurnMs) {
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

    Label2_ = newLabel(QStringLiteral("Aucune page trouvée."), kNotice, look::Weight::Bold, this);
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
    for (const auto& [control, name] : {std::pair<QWidget*, const char*>{Text1_, "Text1"},
                                        {Checkmots_, "Checkmots"},
                                        {accents_, "accents"},
                                        {Label2_, "Label2"},
                                        {Pbar1_, "Pbar1"},
                                        {List2_, "List2"},
                                        {Command1_, "Command1"},
                                        {Command2_, "Command2"},
                                        {Command3_, "Command3"}})
        control->setObjectName(QString::fromLatin1(name));
    orderFocus();
    connectHandlers();
}

void Coordon::orderFocus() {
    QWidget* const order[] = {Text1_,    Command2_, Checkmots_, accents_,
                              Command1_, List2_,    Command3_};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void Coordon::connectHandlers() {
    connect(Command1_, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command2_, &QPushButton::clicked, this, &Coordon::Command2_Click);
    connect(Command3_, &QPushButton::clicked, this, &Coordon::Command3_Click);
    connect(List2_, &QListView::doubleClicked, this, &Coordon::List2_DblClick);
    connect(List2_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& line) { Command3_->setEnabled(line.isValid()); });
}

void Coordon::Form_Load() {
    state_.SearchChosenPage = 0;
    pages_ = searchablePages(state_.InstallDir);
    Pbar1_->hide();
    Label2_->hide();
    showList(false);
    Text1_->setFocus();
}

void Coordon::Command2_Click() {
    if (search_)
        return;
    Query query{queryWords(Text1_->text().toStdU16String()), Checkmots_->isChecked(),
                accents_->isChecked()};
    if (query.words.empty())
        return;
    query_ = query;
    // Nothing of a course that cannot be opened is found.
    if (!pages_) {
        showFound({});
        return;
    }
    search_.emplace(*pages_, std::move(query));
    found_.setPages({});
    Command3_->setEnabled(false); // the list does not tell that its line has gone
    // The bar goes from the second record to the last, the only one of a short table included.
    Pbar1_->setRange(1, std::max(1, pages_->lastPosition()));
    Pbar1_->setValue(1);
    Pbar1_->show();
    Label2_->hide();
    searchOn();
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
    const bool some = !pages.empty();
    found_.setPages(std::move(pages));
    Pbar1_->hide();
    Label2_->setVisible(!some);
    showList(some);
    if (!some) {
        QAccessibleEvent alert(Label2_, QAccessible::Alert); // a screen reader says it
        QAccessible::updateAccessibility(&alert);
        return;
    }
    List2_->setCurrentIndex(found_.index(0));
    List2_->setFocus();
}

/// The list with its button, and the window as tall as that needs. The blue button is the one that
/// is likely to be wanted next.
void Coordon::showList(bool shown) {
    List2_->setVisible(shown);
    Command3_->setVisible(shown);
    Command2_->setKind(shown ? Button::Kind::Ordinary : Button::Kind::Main);
    Command3_->setKind(Button::Kind::Main);
    setFixedSize(kWidth, shown ? kHighHeight : kLowHeight);
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
    QPainter(this).fillRect(rect(), QColor::fromRgb(look::kIvory));
}

} // namespace search
