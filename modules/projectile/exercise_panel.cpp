#include "projectile/exercise_panel.h"

#include "common/house.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace projectile {

namespace {

constexpr int kFieldWidth = 96;
constexpr int kSign = 18;
constexpr int kLongestAnswer = 32; ///< characters

/// A small window leaves the texts this much; longer ones are cut rather than push the drawing out.
constexpr int kMostHeld = 280;

/// The sign of the verdict, blank until there is one.
class Sign : public QWidget {
public:
    Sign() { setFixedSize(kSign, kSign); }

    void setVerdict(common::Verdict verdict) {
        verdict_ = verdict;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (verdict_)
            common::paintVerdict(painter, 1, 1, *verdict_);
    }

private:
    std::optional<common::Verdict> verdict_;
};

QLabel* paragraph(const QString& text, bool bold = false) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    if (bold)
        label->setFont(common::houseFont(common::kTextPx, true));
    return label;
}

} // namespace

ExercisePanel::ExercisePanel(const Exercise& exercise, QWidget* parent)
    : QWidget(parent), exercise_(exercise), field_(new QLineEdit), sign_(new Sign),
      verdict_(paragraph({})) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 10, 14, 12);
    layout->setSpacing(6);
    auto* title = paragraph(exercise_.title);
    title->setFont(common::houseFont(16, true));
    title->setStyleSheet(QStringLiteral("color: %1; font-size: 16px; font-weight: bold;")
                             .arg(QColor::fromRgb(common::kBlue).name()));
    layout->addWidget(title);
    for (const QString& text : exercise_.statement)
        layout->addWidget(paragraph(text));

    field_->setMaxLength(kLongestAnswer);
    field_->setFixedWidth(kFieldWidth);
    field_->setAlignment(Qt::AlignRight);
    field_->setAccessibleName(exercise_.question);
    auto* button = new QPushButton(QStringLiteral("Vérifier"));
    button->setProperty("main", true);
    auto* row = new QHBoxLayout;
    row->setSpacing(common::kGap);
    row->addWidget(paragraph(exercise_.question, true), 1);
    row->addWidget(field_);
    row->addWidget(new QLabel(exercise_.unit));
    row->addSpacing(common::kGap);
    row->addWidget(button);
    layout->addLayout(row);

    auto* answer = new QHBoxLayout;
    answer->setSpacing(common::kGap);
    answer->addWidget(sign_, 0, Qt::AlignTop);
    answer->addWidget(verdict_, 1);
    layout->addLayout(answer);
    sign_->hide();
    verdict_->hide();

    connect(button, &QPushButton::clicked, this, &ExercisePanel::check);
    connect(field_, &QLineEdit::returnPressed, this, &ExercisePanel::check);
}

void ExercisePanel::check() {
    const Answer answer = exercise_.judge(field_->text());
    const bool right = answer == Answer::Right;
    static_cast<Sign*>(sign_)->setVerdict(right ? common::Verdict::Right : common::Verdict::Wrong);
    sign_->setVisible(answer != Answer::NoNumber);
    if (answer == Answer::NoNumber) {
        verdict_->setText(QStringLiteral("Tapez un nombre, par exemple 12,5."));
    } else {
        verdict_->setText(
            (right ? QStringLiteral("Juste\u00A0! ") : QStringLiteral("Ce n’est pas cela. ")) +
            (right ? exercise_.whenRight : exercise_.whenWrong));
    }
    verdict_->setStyleSheet(QStringLiteral("color: %1;")
                                .arg(QColor::fromRgb(answer == Answer::NoNumber ? common::kMuted
                                                     : right                    ? common::kGreen
                                                                                : common::kRed)
                                         .name()));
    verdict_->show();
    verdict_->setAccessibleName(verdict_->text());
    holdHeight();
    field_->setFocus();
    field_->selectAll();
    if (right)
        Q_EMIT solved();
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
    painter.fillRect(rect(), QColor::fromRgb(common::kPaper));
    painter.setPen(QColor::fromRgb(common::kRule));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.fillRect(0, 0, 4, height(), QColor::fromRgb(common::kBlue));
}

} // namespace projectile
