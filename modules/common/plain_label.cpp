#include "common/plain_label.h"

#include "look/ink.h"

namespace common {

QLabel* plainLabel(const QString& words, const LabelLook& look) {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(words);
    label->setFont(look::interfaceFont(look.pixels, look.weight));
    look::setInk(*label, look.ink);
    return label;
}

QLabel* paragraph(const QString& words, const LabelLook& look) {
    QLabel* label = plainLabel(words, look);
    label->setWordWrap(true);
    return label;
}

QLabel* heading(const QString& words) {
    QLabel* label = plainLabel(words, {.weight = look::Weight::Bold, .ink = look::kBlue});
    label->setContentsMargins(0, 6, 0, 0);
    return label;
}

} // namespace common
