#include "look/outcome_line.h"

#include "look/button.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>

namespace look {

namespace {

constexpr double kSignLeft = 2;
constexpr double kSign = 20;
constexpr int kWordsLeft = 28;
constexpr int kGap = 8;
constexpr int kButtonMargin = 12;

QString signOf(OutcomeLine::Kind kind) {
    switch (kind) {
    case OutcomeLine::Kind::Warning:
        return QStringLiteral("warning");
    case OutcomeLine::Kind::Done:
        return QStringLiteral("validate");
    case OutcomeLine::Kind::Voice:
        return QStringLiteral("voice");
    }
    return {};
}

/// Leaves the last words out, for the tooltip to tell, until the text fits the label's height.
void shortenToFit(QLabel& label) {
    QString words = label.text();
    while (!words.isEmpty() && label.heightForWidth(label.width()) > label.height()) {
        words.truncate(words.lastIndexOf(u' '));
        label.setText(words + u'…');
    }
}

} // namespace

OutcomeLine::OutcomeLine(QWidget* parent)
    : QWidget(parent), words_(new QLabel(this)),
      button_(new Button(QStringLiteral("Ouvrir"), {.icon = {}}, this)) {
    words_->setObjectName(QStringLiteral("outcome"));
    words_->setTextFormat(Qt::PlainText);
    words_->setWordWrap(true);
    words_->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    words_->setFont(interfaceFont(kSmallPx));
    setInk(*words_, kInk);
    button_->setObjectName(QStringLiteral("outcomeAction"));
    connect(button_, &QPushButton::clicked, this, [this] {
        if (run_)
            run_();
    });
    hide();
}

void OutcomeLine::tell(Kind kind, const QString& words, const LineAction& action) {
    sign_ = Icon(signOf(kind));
    all_ = words;
    run_ = action.run;
    if (!action.caption.isEmpty())
        button_->setCaption(action.caption);
    button_->setVisible(!action.caption.isEmpty());
    arrange();
    show();
    update();
    QAccessibleEvent alert(words_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void OutcomeLine::arrange() {
    int right = width();
    if (button_->isVisibleTo(this)) {
        const int wide = button_->sizeHint().width() + kButtonMargin;
        button_->setGeometry(right - wide, 0, wide, height());
        right -= wide + kGap;
    }
    words_->setGeometry(kWordsLeft, 0, right - kWordsLeft, height());
    words_->setText(all_);
    look::setToolTip(*words_, all_);
    shortenToFit(*words_);
}

void OutcomeLine::resizeEvent(QResizeEvent*) {
    arrange();
}

void OutcomeLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    sign_.paint(painter, {kSignLeft, (height() - kSign) / 2, kSign, kSign}, Icon::Style::Coloured);
}

} // namespace look
