#include "viewer/chapter_bar.h"

#include "look/accessible_role.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QLabel>
#include <QPainter>

namespace viewer {

namespace {

using look::Button;

constexpr QRect kPrevious(0, 0, 152, 32);
constexpr QRect kWords(160, 0, 304, 32);
constexpr QRect kStatus(188, 0, 276, 32); ///< beside the sign
constexpr QRectF kSign(162, 6, 20, 20);
constexpr QRect kNext(472, 0, 152, 32);

/// Long enough to notice a line of some ten words and read it twice.
constexpr int kStatusMs = 20'000;

Button* addButton(const QString& name, const QString& caption, const QString& toolTip,
                  const Button::Look& look, const QRect& place, QWidget* parent) {
    auto* button = new Button(caption, look, parent);
    button->setObjectName(name);
    look::setToolTip(*button, toolTip);
    button->setAccessibleName(toolTip); // says more than the caption
    button->setGeometry(place);
    button->hide();
    return button;
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

ChapterBar::ChapterBar(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::Grouping);
    setObjectName(QStringLiteral("Framebase"));
    setAccessibleName(QStringLiteral("Chapitre"));
    avantcours_ = addButton(QStringLiteral("avantcours"), QStringLiteral("Page précédente"),
                            QStringLiteral("Page précédente dans ce chapitre"),
                            {.icon = QStringLiteral("previous-in-chapter")}, kPrevious, this);
    words_ = new QLabel(this);
    words_->setObjectName(QStringLiteral("status"));
    words_->setTextFormat(Qt::PlainText);
    words_->setWordWrap(true);
    suite_ =
        addButton(QStringLiteral("suite"), QStringLiteral("Page suivante"),
                  QStringLiteral("Page suivante dans ce chapitre"),
                  {.icon = QStringLiteral("next-in-chapter"), .place = Button::IconPlace::Right},
                  kNext, this);
    untilRead_.setSingleShot(true);
    untilRead_.setInterval(kStatusMs);
    connect(&untilRead_, &QTimer::timeout, this, [this] { clearStatus(); });
    showWords();
}

void ChapterBar::setButtonsVisible(bool previous, bool next) {
    avantcours_->setVisible(previous);
    suite_->setVisible(next);
    showWords();
}

void ChapterBar::showStatus(const QString& line) {
    status_ = line;
    untilRead_.start();
    showWords();
    look::announce(*this, line);
}

void ChapterBar::clearStatus() {
    status_.clear();
    untilRead_.stop();
    showWords();
}

void ChapterBar::showWords() {
    using namespace look;
    const bool hasStatus = !status_.isEmpty();
    const bool hasButtons = !avantcours_->isHidden() || !suite_->isHidden();
    words_->setGeometry(hasStatus ? kStatus : kWords);
    words_->setAlignment(hasStatus ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignCenter);
    words_->setFont(interfaceFont(kSmallPx));
    setInk(*words_, hasStatus ? kInk : kMuted);
    words_->setText(hasStatus    ? status_
                    : hasButtons ? QStringLiteral("Dans ce chapitre")
                                 : QString());
    look::setToolTip(*words_, status_);
    if (hasStatus)
        shortenToFit(*words_);
    update();
}

void ChapterBar::paintEvent(QPaintEvent*) {
    if (status_.isEmpty())
        return;
    QPainter painter(this);
    sign_.paint(painter, kSign, look::Icon::Style::Coloured);
}

} // namespace viewer
