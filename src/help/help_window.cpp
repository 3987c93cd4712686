#include "help/help_window.h"

#include "help/help_browser.h"
#include "help/help_list.h"
#include "help/help_search.h"
#include "help/hit_bar.h"
#include "help/manual_proposal.h"
#include "help/page_document.h"
#include "look/accessible_role.h"
#include "look/button.h"
#include "look/mnemonics.h"
#include "look/outcome_line.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/program_icon.h"
#include "look/text_field.h"
#include "look/tool_tip.h"
#include "platform/printed_words.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace help {

namespace {

using look::Button;

constexpr QSize kSize(880, 680); ///< all of the contents at once
constexpr QSize kSmallest(560, 400);
constexpr int kGrid = 8;
constexpr int kToolbar = 64;
constexpr QSize kButton(64, 56);
constexpr int kListWidth = 232;
constexpr int kFieldHeight = 32;
constexpr int kLongestQuery = 200; ///< nobody types more; each letter is searched for at once

const QString kTitle = QStringLiteral("Aide d’Orvalente");

template <class Act>
Button* addButton(QBoxLayout& row, const QString& caption, const QString& toolTip,
                  const QString& icon, QWidget* parent, Act act) {
    auto* button = new Button(
        caption, {.kind = Button::Kind::Toolbar, .icon = icon, .place = Button::IconPlace::Top},
        parent);
    look::setToolTip(*button, toolTip);
    button->setAccessibleDescription(toolTip);
    button->setFixedSize(kButton);
    QObject::connect(button, &QPushButton::clicked, parent, act);
    row.addWidget(button);
    return button;
}

} // namespace

HelpWindow::HelpWindow(const HelpBook& book, const HelpPrinting& printing)
    : book_(book), printing_(printing), words_(new look::TextField(this)),
      list_(new HelpList(book, this)), browser_(new HelpBrowser(book, this)),
      hitBar_(new HitBar(this)), printed_(new look::OutcomeLine(this)) {
    look::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("aide"));
    setWindowTitle(kTitle);
    setWindowIcon(look::programIcon());
    setMinimumSize(kSmallest);
    resize(kSize.boundedTo(screen()->availableSize()));
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor::fromRgb(look::kIvory));
    colours.setColor(QPalette::Base, QColor::fromRgb(look::kIvory));
    setPalette(colours);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(kGrid, 0, kGrid, kGrid);
    all->setSpacing(kGrid);
    all->addLayout(newToolbar());
    auto* halves = new QHBoxLayout;
    halves->setSpacing(kGrid);
    all->addLayout(halves, 1);
    auto* left = new QVBoxLayout;
    left->setSpacing(kGrid);
    left->addWidget(words_);
    left->addWidget(list_, 1);
    halves->addLayout(left);
    halves->addLayout(newPagePart(), 1);

    words_->setFont(look::interfaceFont(look::kLabelPx));
    words_->setFixedSize(kListWidth, kFieldHeight);
    words_->setMaxLength(kLongestQuery);
    words_->setPlaceholderText(QStringLiteral("Rechercher dans l’aide"));
    words_->setAccessibleName(words_->placeholderText());
    list_->setFixedWidth(kListWidth);
    addKeys();
    connectHandlers();
    new look::MnemonicDisplay(this);
    home();
    browser_->setFocus();
}

QBoxLayout* HelpWindow::newToolbar() {
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 4, 0, 4);
    back_ = addButton(*row, QStringLiteral("&Précédent"), QStringLiteral("Page vue auparavant"),
                      QStringLiteral("previous-page"), this, [this] { browser_->backward(); });
    forward_ = addButton(*row, QStringLiteral("S&uivant"), QStringLiteral("Page vue ensuite"),
                         QStringLiteral("next-page"), this, [this] { browser_->forward(); });
    addButton(*row, QStringLiteral("&Accueil"), QStringLiteral("Première page de l’aide"),
              QStringLiteral("home"), this, [this] { home(); });
    addButton(*row, QStringLiteral("&Imprimer"), QStringLiteral("Imprimer cette page"),
              QStringLiteral("print"), this, [this] { print(); });
    row->addStretch();
    const auto addZoom = [this, row](const QString& caption, const QString& words, int by) {
        auto* button = new Button(caption, {.icon = {}}, this);
        look::setToolTip(*button, words);
        button->setAccessibleName(words);
        button->setFixedSize(kFieldHeight, kFieldHeight);
        connect(button, &QPushButton::clicked, this,
                [this, by] { browser_->setZoomStep(browser_->zoomStep() + by); });
        row->addWidget(button);
    };
    addZoom(QStringLiteral("A−"), QStringLiteral("Réduire le texte (Ctrl + −)"), -1);
    row->addSpacing(kGrid);
    addZoom(QStringLiteral("A+"), QStringLiteral("Agrandir le texte (Ctrl + +)"), 1);
    return row;
}

QBoxLayout* HelpWindow::newPagePart() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kGrid);
    // The rule around the page is the window's; paintEvent() draws it.
    auto* framed = new QVBoxLayout;
    framed->setContentsMargins(look::kInsideFrame);
    framed->addWidget(browser_);
    column->addLayout(framed, 1);
    column->addWidget(hitBar_);
    printed_->setFixedHeight(kFieldHeight);
    column->addWidget(printed_);
    return column;
}

void HelpWindow::addKeys() {
    const auto on = [this](const QKeySequence& keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    const auto zoom = [this](int step) { browser_->setZoomStep(step); };
    on(QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
        words_->setFocus();
        words_->selectAll();
    });
    on(QKeySequence(Qt::CTRL | Qt::Key_P), [this] { print(); });
    on(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { browser_->backward(); });
    on(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { browser_->forward(); });
    on(QKeySequence(Qt::ALT | Qt::Key_Home), [this] { home(); });
    on(QKeySequence(Qt::Key_F3), [this] { stepHit(1); });
    on(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { stepHit(-1); });
    // "+" lies on the key of "=", with or without the shift key.
    for (const int plus : {Qt::Key_Plus, Qt::Key_Equal})
        on(QKeySequence(Qt::CTRL | Qt::Key(plus)),
           [this, zoom] { zoom(browser_->zoomStep() + 1); });
    on(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this, zoom] { zoom(browser_->zoomStep() - 1); });
    on(QKeySequence(Qt::CTRL | Qt::Key_0), [zoom] { zoom(0); });
}

void HelpWindow::connectHandlers() {
    connect(words_, &QLineEdit::textChanged, this, [this](const QString& typed) { search(typed); });
    connect(words_, &QLineEdit::returnPressed, this, [this] {
        if (const int first = list_->firstPage(); first >= 0 && !words_->text().isEmpty())
            openFound(first);
    });
    list_->onOpen([this](int page) { openFound(page); });
    hitBar_->onStep([this](int by) { stepHit(by); });
    connect(browser_, &QTextBrowser::historyChanged, this, [this] {
        back_->setEnabled(browser_->isBackwardAvailable());
        forward_->setEnabled(browser_->isForwardAvailable());
    });
    browser_->onShown([this] { pageShown(); });
    back_->setEnabled(false);
    forward_->setEnabled(false);
}

void HelpWindow::home() {
    if (!book_.pages().isEmpty())
        browser_->showPage(book_.pages().first().file);
}

void HelpWindow::search(const QString& typed) {
    const HelpQuery query(typed);
    if (typed.trimmed().isEmpty())
        list_->showContents();
    else
        list_->showFound(help::search(book_, query));
    browser_->setQuery(query);
}

void HelpWindow::openFound(int page) {
    browser_->showPage(book_.pages()[page].file);
    browser_->setFocus();
    if (browser_->currentHit() < 0)
        stepHit(1);
}

void HelpWindow::pageShown() {
    list_->choosePage(browser_->page());
    hitBar_->showHits(browser_->currentHit(), browser_->hitCount());
    printed_->hide();
    update(); // the bars move the edge of the page, which the window draws
}

void HelpWindow::stepHit(int by) {
    browser_->stepHit(by);
    hitBar_->showHits(browser_->currentHit(), browser_->hitCount());
}

void HelpWindow::print() {
    if (book_.pages().isEmpty() ||
        printing_.setup.ask() != platform::PrinterSetup::Outcome::Confirmed)
        return;
    ManualProposal proposal(book_, browser_->page(), printing_.metrics);
    const auto choice = printing_.preview.ask(proposal);
    if (!choice)
        return;
    if (!proposal.print(*choice, printing_.printer)) {
        printing_.messageBoxes.ask(
            {QStringLiteral("Imprimer"), QStringLiteral("La page n’a pas pu être imprimée."),
             platform::Message::Icon::Exclamation, platform::Message::Buttons::Ok});
        return;
    }
    const platform::PrintTarget target = printing_.printer.target();
    const auto show = platform::showingOf(target, printing_.opener, printing_.messageBoxes);
    printed_->tell(look::OutcomeLine::Kind::Done,
                   platform::printedWords(proposal.pageCount(*choice), target),
                   {show ? QStringLiteral("Ouvrir") : QString(), show});
    layout()->activate();
    update(); // the line moves the edge of the page
}

void HelpWindow::leaveSearchOrClose() {
    if (words_->hasFocus() && !words_->text().isEmpty())
        words_->clear();
    else
        close();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        return leaveSearchOrClose();
    case Qt::Key_Backspace:
        if (!words_->hasFocus())
            browser_->backward();
        return;
    case Qt::Key_Down:
        if (words_->hasFocus())
            list_->setFocus();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void HelpWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(QRectF(0, kToolbar, width(), look::crisp(painter)),
                     QColor::fromRgb(look::kRule));
    const QRect page = browser_->geometry().marginsAdded(look::kInsideFrame);
    look::drawFrame(painter, page, 0, look::kRule, QColor::fromRgb(look::kPaper));
}

} // namespace help
