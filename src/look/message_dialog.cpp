#include "look/message_dialog.h"

#include "look/button.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/program_icon.h"
#include "look/spaced_label.h"

#include <QApplication>
#include <QPainter>

namespace look {

namespace {

constexpr int kWidth = 400;
constexpr int kLeastHeight = 148;
constexpr QRect kSign(24, 24, 48, 48);
constexpr int kTextLeft = 96;
constexpr int kTextWidth = kWidth - kTextLeft - 24;
constexpr int kLineHeight = 20;
constexpr int kBaseline = 15; ///< in a line
constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr int kButtonHeight = 32;
constexpr int kButtonWidth = 96; ///< at least
constexpr int kAboveButtons = 28;

QString signName(platform::Message::Icon icon) {
    switch (icon) {
    case platform::Message::Icon::Critical:
        return QStringLiteral("error");
    case platform::Message::Icon::Question:
        return QStringLiteral("question");
    case platform::Message::Icon::Exclamation:
        return QStringLiteral("warning");
    case platform::Message::Icon::Information:
        break;
    }
    return QStringLiteral("info");
}

struct Choice {
    platform::Answer answer;
    QString caption;
};

/// In the order of the buttons. The last one is what closing the box answers.
QList<Choice> choices(platform::Message::Buttons buttons) {
    const Choice ok{platform::Answer::Ok, QStringLiteral("OK")};
    const Choice cancel{platform::Answer::Cancel, QStringLiteral("&Annuler")};
    switch (buttons) {
    case platform::Message::Buttons::OkCancel:
        return {ok, cancel};
    case platform::Message::Buttons::YesNo:
        return {{platform::Answer::Yes, QStringLiteral("&Oui")},
                {platform::Answer::No, QStringLiteral("&Non")}};
    case platform::Message::Buttons::RetryCancel:
        return {{platform::Answer::Retry, QStringLiteral("&Réessayer")}, cancel};
    case platform::Message::Buttons::Ok:
        break;
    }
    return {ok};
}

} // namespace

MessageDialog::MessageDialog(const platform::Message& message, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      sign_(signName(message.icon)), text_(new SpacedLabel(kLineHeight, kBaseline, this)),
      answer_(choices(message.buttons).last().answer) {
    text_->setText(QString(message.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    setWindowTitle(message.title);
    setWindowIcon(programIcon()); // there may be no other window, or none with an icon yet
    setAccessibleName(message.title);
    setAccessibleDescription(text_->text());
    setModal(true);
    addButtons(message.buttons);
    arrange();
    new MnemonicDisplay(this);
}

void MessageDialog::addButtons(platform::Message::Buttons buttons) {
    for (const Choice& choice : choices(buttons)) {
        const auto kind = buttons_.isEmpty() ? Button::Kind::Main : Button::Kind::Ordinary;
        auto* button = new Button(choice.caption, {.kind = kind, .icon = {}}, this);
        connect(button, &QPushButton::clicked, this, [this, answer = choice.answer] {
            answer_ = answer;
            accept();
        });
        buttons_.append(button);
    }
    buttons_.first()->setDefault(true);
    buttons_.first()->setFocus();
}

void MessageDialog::arrange() {
    const int textHeight = text_->heightForWidth(kTextWidth);
    // Beside the sign, on its middle; a text taller than the sign starts at its top.
    const int textTop = qMax(kSign.top(), kSign.center().y() + 1 - textHeight / 2);
    text_->setGeometry(kTextLeft, textTop, kTextWidth, textHeight);
    const int buttonTop = qMax(kLeastHeight - kMargin - kButtonHeight,
                               text_->geometry().bottom() + 1 + kAboveButtons);
    int right = kWidth - kMargin;
    for (auto button = buttons_.crbegin(); button != buttons_.crend(); ++button) {
        const int width = qMax(kButtonWidth, (*button)->sizeHint().width());
        (*button)->setGeometry(right - width, buttonTop, width, kButtonHeight);
        right -= width + kGap;
    }
    setFixedSize(kWidth, buttonTop + kButtonHeight + kMargin);
}

void MessageDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(kIvory));
    sign_.paint(painter, kSign, Icon::Style::Coloured);
}

platform::Answer DialogMessageBoxes::ask(const platform::Message& message) {
    MessageDialog dialog(message, QApplication::activeWindow());
    dialog.exec();
    return dialog.answer();
}

} // namespace look
