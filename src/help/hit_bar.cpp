#include "help/hit_bar.h"

#include "look/announcement.h"
#include "look/button.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QHBoxLayout>
#include <QLabel>

namespace help {

namespace {

using look::Button;

constexpr int kHeight = 32;

} // namespace

HitBar::HitBar(QWidget* parent) : QWidget(parent), words_(new QLabel(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    words_->setTextFormat(Qt::PlainText);
    words_->setFont(look::interfaceFont(look::kLabelPx));
    row->addWidget(words_, 1);
    addButton(QStringLiteral("up"), QStringLiteral("Mot marqué précédent (Maj + F3)"), -1);
    addButton(QStringLiteral("down"), QStringLiteral("Mot marqué suivant (F3)"), 1);
    setFixedHeight(kHeight);
    hide();
}

void HitBar::addButton(const QString& icon, const QString& words, int by) {
    auto* button = new Button({}, {.icon = icon}, this);
    look::setToolTip(*button, words);
    button->setAccessibleName(words);
    button->setFixedSize(kHeight, kHeight);
    connect(button, &QPushButton::clicked, this, [this, by] {
        if (step_)
            step_(by);
    });
    layout()->addWidget(button);
}

void HitBar::showHits(int current, int count) {
    setVisible(count > 0);
    words_->setText(current < 0
                        ? (count == 1 ? QStringLiteral("1 mot marqué sur cette page")
                                      : QStringLiteral("%1 mots marqués sur cette page").arg(count))
                        : QStringLiteral("Mot marqué %1 sur %2").arg(current + 1).arg(count));
    if (count > 0)
        look::announce(*this, words_->text());
}

} // namespace help
