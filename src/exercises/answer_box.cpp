#include "exercises/answer_box.h"

#include "exercises/mark_picture.h"

#include <QPainter>

namespace exercises {

namespace {

constexpr int kMarkPx = 16;
constexpr int kGapPx = 5;

} // namespace

AnswerBox::AnswerBox(QWidget* parent) : look::TextField(parent) {}

void AnswerBox::setMark(std::optional<Mark> mark) {
    mark_.reset();
    if (mark)
        mark_.emplace(markName(*mark));
    QMargins margins = textMargins();
    margins.setRight(margins.left() + (mark ? kMarkPx + kGapPx : 0));
    setTextMargins(margins);
    update();
}

void AnswerBox::paintEvent(QPaintEvent* event) {
    look::TextField::paintEvent(event);
    if (!mark_)
        return;
    QPainter painter(this);
    mark_->paint(painter,
                 QRectF(width() - kGapPx - kMarkPx, (height() - kMarkPx) / 2.0, kMarkPx, kMarkPx),
                 look::Icon::Style::Coloured);
}

} // namespace exercises
