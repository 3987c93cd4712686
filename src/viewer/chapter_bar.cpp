#include "viewer/chapter_bar.h"

#include "look/accessible_role.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QLabel>

namespace viewer {

namespace {

using look::Button;

constexpr QRect kPrevious(0, 0, 152, 32);
constexpr QRect kWords(160, 0, 304, 32);
constexpr QRect kNext(472, 0, 152, 32);

/// Long enough to notice a line of some ten words and read it twice.
constexpr int kReadMs = 20'000;

/// The same, and to decide whether to press its button.
constexpr int kDecidedMs = 60'000;

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

} // namespace

ChapterBar::ChapterBar(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::Grouping);
    setObjectName(QStringLiteral("Framebase"));
    setAccessibleName(QStringLiteral("Chapitre"));
    avantcours_ = addButton(QStringLiteral("avantcours"), QStringLiteral("Page précédente"),
                            QStringLiteral("Page précédente dans ce chapitre"),
                            {.icon = QStringLiteral("previous-in-chapter")}, kPrevious, this);
    words_ = new QLabel(QStringLiteral("Dans ce chapitre"), this);
    words_->setObjectName(QStringLiteral("status"));
    words_->setTextFormat(Qt::PlainText);
    words_->setAlignment(Qt::AlignCenter);
    words_->setFont(look::interfaceFont(look::kSmallPx));
    words_->setGeometry(kWords);
    look::setInk(*words_, look::kMuted);
    line_ = new look::OutcomeLine(this);
    line_->setGeometry(kWords);
    suite_ =
        addButton(QStringLiteral("suite"), QStringLiteral("Page suivante"),
                  QStringLiteral("Page suivante dans ce chapitre"),
                  {.icon = QStringLiteral("next-in-chapter"), .place = Button::IconPlace::Right},
                  kNext, this);
    untilRead_.setSingleShot(true);
    connect(&untilRead_, &QTimer::timeout, this, [this] { clearLine(); });
    showWords();
}

void ChapterBar::setButtonsVisible(bool previous, bool next) {
    avantcours_->setVisible(previous);
    suite_->setVisible(next);
    showWords();
}

void ChapterBar::showLine(look::OutcomeLine::Kind kind, const QString& line,
                          const look::LineAction& action) {
    line_->tell(kind, line, action);
    untilRead_.start(action.run ? kDecidedMs : kReadMs);
    showWords();
    look::announce(*this, line);
}

void ChapterBar::clearLine() {
    line_->hide();
    untilRead_.stop();
    showWords();
}

void ChapterBar::showWords() {
    const bool hasButtons = !avantcours_->isHidden() || !suite_->isHidden();
    words_->setVisible(line_->isHidden() && hasButtons);
}

} // namespace viewer
