#include "shell/alerte.h"

#include "look/button.h"
#include "look/ink.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/program_icon.h"
#include "look/spaced_label.h"
#include "shell/display_warning_words.h"

#include <QApplication>
#include <QPainter>

namespace shell {

namespace {

constexpr int kWidth = 560;
constexpr QRectF kPicture(24, 24, 48, 48);
constexpr QPoint kText(88, 24);
constexpr int kTextWidth = kWidth - 88 - 24;
constexpr int kLineHeight = 22;
constexpr int kBaseline = 16; ///< in a line
constexpr int kLeastTextBottom = 90;
constexpr int kAboveRule = 21;
constexpr int kAboveButtons = 21; ///< below the rule
constexpr int kMargin = 24;
constexpr int kBelowButtons = 20;
constexpr QSize kButton(252, 32);

/// Result of the window when the program is to end.
constexpr int kQuits = QDialog::Accepted + 1;

look::SpacedLabel* newText(QRgb colour, QWidget* parent) {
    auto* text = new look::SpacedLabel(kLineHeight, kBaseline, parent);
    look::setInk(*text, colour);
    return text;
}

look::Button* newButton(const char* name, const QString& caption, bool isMain, QWidget* parent) {
    const auto kind = isMain ? look::Button::Kind::Main : look::Button::Kind::Ordinary;
    auto* button = new look::Button(caption, {.kind = kind, .icon = {}}, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

Alerte::Alerte(std::int16_t mode, platform::DisplaySettings& settings, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      mode_(mode), settings_(settings), picture_(QStringLiteral("warning")),
      Label1_(newText(look::kInk, this)), notice_(newText(look::kMuted, this)) {
    setObjectName(QStringLiteral("alerte"));
    setWindowTitle(QStringLiteral("Configuration de l’écran"));
    setWindowIcon(look::programIcon()); // it comes before the main window has one
    setModal(true);
    Label1_->setObjectName(QStringLiteral("Label1"));
    notice_->setObjectName(QStringLiteral("notice"));
    notice_->setText(QStringLiteral(
        "Les paramètres d’affichage de ce système n’ont pas pu être ouverts d’ici."));
    notice_->hide();

    // On a screen that is too narrow, the way on leads through the settings.
    const bool blocks = mode_ == kBlockingWarning;
    Command2_ =
        newButton("Command2", QStringLiteral("Ouvrir les paramètres d’affichage"), blocks, this);
    Command1_ = newButton("Command1", QStringLiteral("Continuer"), blocks, this);
    Command3_ = newButton("Command3", {}, !blocks, this);
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(Command3_, &QPushButton::clicked, this, [this] { Command3_Click(); });
    Form_Load();
}

void Alerte::Form_Load() {
    const DisplayWarningWords words = displayWarningWords(mode_);
    Label1_->setText(words.text);
    setAccessibleDescription(words.text);
    Command3_->setCaption(words.answer);
    Command1_->hide();
    look::Button* const first = mode_ == kBlockingWarning ? Command2_ : Command3_;
    first->setDefault(true);
    first->setFocus();
    arrange();
}

DisplayWarning::Choice Alerte::run() {
    exec();
    return choice_;
}

void Alerte::Command1_Click() {
    accept();
}

void Alerte::Command2_Click() {
    // The way on opens whether or not there are settings: nobody is to be stuck here.
    const bool opened = settings_.open();
    notice_->setVisible(!opened);
    // Who cannot see the notice hears it with the button that now takes the focus.
    Command1_->setAccessibleDescription(opened ? QString() : notice_->text());
    Command1_->show();
    Command1_->setDefault(Command2_->isDefault());
    Command1_->setFocus();
    Command2_->hide();
    arrange();
}

void Alerte::Command3_Click() {
    if (mode_ == kBlockingWarning)
        done(kQuits);
    else
        accept();
}

/// However the window is answered, it comes here. When the program ends, exec() returns without.
void Alerte::done(int result) {
    choice_ = result == kQuits ? DisplayWarning::Choice::Quit : DisplayWarning::Choice::Continue;
    QDialog::done(result);
}

void Alerte::arrange() {
    const int textHeight = Label1_->heightForWidth(kTextWidth);
    // A text lower than the sign stands on its middle.
    const int textTop = qMax(kText.y(), qRound(kPicture.center().y()) - textHeight / 2);
    Label1_->setGeometry(kText.x(), textTop, kTextWidth, textHeight);
    int textBottom = textTop + textHeight;
    if (notice_->isVisibleTo(this)) {
        notice_->setGeometry(kText.x(), textBottom, kTextWidth, kLineHeight);
        textBottom += kLineHeight;
    }
    const int buttonTop = qMax(kLeastTextBottom, textBottom) + kAboveRule + kAboveButtons;
    for (look::Button* button : {Command1_, Command2_})
        button->setGeometry(QRect(QPoint(kMargin, buttonTop), kButton));
    Command3_->setGeometry(QRect(QPoint(kWidth - kMargin - kButton.width(), buttonTop), kButton));
    setFixedSize(kWidth, buttonTop + kButton.height() + kBelowButtons);
    update();
}

void Alerte::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kIvory));
    picture_.paint(painter, kPicture, look::Icon::Style::Coloured);
    const double rule = Command3_->y() - kAboveButtons;
    painter.fillRect(QRectF(0, rule, width(), look::crisp(painter)), QColor::fromRgb(look::kRule));
}

DisplayWarning::Choice AlerteOpener::showModally() {
    return Alerte(state_.DisplayWarningMode, settings_, QApplication::activeWindow()).run();
}

} // namespace shell
