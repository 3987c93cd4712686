#include "common/exercise_panel.h"

#include "common/plain_label.h"
#include "common/qt_text.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/icon.h"
#include "look/ink.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/text_field.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace common {

namespace {

constexpr int kFieldWidth = 96;
constexpr int kFieldHeight = 28;
constexpr int kHeadingPx = 16;
constexpr int kSign = 18;
constexpr int kLongestAnswer = 32; ///< characters

/// A small window leaves the texts this much; longer ones are cut rather than push the drawing out.
constexpr int kMostHeld = 280;

/// The sign of the verdict, blank until there is one. It can be told without its colour.
class Sign : public QWidget {
public:
    Sign() { setFixedSize(kSign, kSign); }

    void setRight(bool right) {
        sign_ = look::Icon(right ? QStringLiteral("faces/right") : QStringLiteral("faces/wrong"));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        sign_.paint(painter, rect(), look::Icon::Style::Coloured);
    }

private:
    look::Icon sign_;
};

} // namespace

ExercisePanel::ExercisePanel(const Task& task, QWidget* parent)
    : QWidget(parent), task_(task), field_(new look::TextField(this)), sign_(new Sign),
      verdict_(paragraph({})),
      nextButton_(new look::Button(QStringLiteral("Exercice suivant"), {.icon = {}}, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 10, 14, 12);
    layout->setSpacing(6);
    layout->addWidget(
        paragraph(qtText(task_.title),
                  {.pixels = kHeadingPx, .weight = look::Weight::Bold, .ink = look::kBlue}));
    for (const std::u16string& text : task_.statement)
        layout->addWidget(paragraph(qtText(text)));

    field_->setMaxLength(kLongestAnswer);
    field_->setFixedSize(kFieldWidth, kFieldHeight);
    field_->setAlignment(Qt::AlignRight);
    field_->setAccessibleName(qtText(task_.question));
    auto* button = new look::Button(QStringLiteral("Vérifier"),
                                    {.kind = look::Button::Kind::Main, .icon = {}}, this);
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(paragraph(qtText(task_.question), {.weight = look::Weight::Bold}), 1);
    row->addWidget(field_);
    row->addWidget(plainLabel(qtText(task_.unit)));
    row->addSpacing(kGap);
    row->addWidget(button);
    layout->addLayout(row);

    auto* answer = new QHBoxLayout;
    answer->setSpacing(kGap);
    answer->addWidget(sign_, 0, Qt::AlignTop);
    answer->addWidget(verdict_, 1);
    answer->addWidget(nextButton_, 0, Qt::AlignTop);
    layout->addLayout(answer);
    sign_->hide();
    verdict_->hide();
    nextButton_->hide();

    connect(button, &QPushButton::clicked, this, &ExercisePanel::check);
    connect(nextButton_, &QPushButton::clicked, this, [this] { next_(); });
    connect(field_, &QLineEdit::returnPressed, this, &ExercisePanel::check);
}

void ExercisePanel::check() {
    const Answer answer = task_.judge(utf16(field_->text()));
    const bool right = answer == Answer::Right;
    static_cast<Sign*>(sign_)->setRight(right);
    sign_->setVisible(answer != Answer::NoNumber);
    verdict_->setText(qtText(task_.verdict(answer)));
    look::setInk(*verdict_, answer == Answer::NoNumber ? look::kMuted
                            : right                    ? look::kGreen
                                                       : look::kRed);
    verdict_->show();
    verdict_->setAccessibleName(verdict_->text());
    look::announce(*this, verdict_->text());
    nextButton_->setVisible(right && next_);
    holdHeight();
    field_->setFocus();
    field_->selectAll();
    if (right)
        solved_();
}

void ExercisePanel::resizeEvent(QResizeEvent*) {
    holdHeight();
}

/// A window knows no height that follows from a width: it would cut the texts when it is small.
void ExercisePanel::holdHeight() {
    setMinimumHeight(std::min(kMostHeld, layout()->heightForWidth(width())));
}

void ExercisePanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    painter.fillRect(0, 0, 4, height(), QColor::fromRgb(look::kBlue));
}

} // namespace common
