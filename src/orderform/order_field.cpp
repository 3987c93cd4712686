#include "orderform/order_field.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace orderform {

namespace {

constexpr double kRadius = 3; ///< of the field's own frame
constexpr int kNoteMargin = 8;

} // namespace

OrderField::OrderField(QWidget* parent) : TextField(parent), inside_(new FieldNote(this)) {
    setFont(look::interfaceFont(look::kLabelPx));
    QPalette colours = palette();
    colours.setColor(QPalette::PlaceholderText, QColor::fromRgb(look::kMuted));
    setPalette(colours);
    inside_->hide();
}

void OrderField::setNoteBeside(FieldNote* note, const QString& hint) {
    beside_ = note;
    hint_ = hint;
    beside_->say(FieldNote::Kind::Hint, hint);
}

void OrderField::setFault(const QString& fault) {
    if (fault == fault_)
        return;
    fault_ = fault;
    setAccessibleDescription(fault);
    if (beside_) {
        beside_->say(fault.isEmpty() ? FieldNote::Kind::Hint : FieldNote::Kind::Fault,
                     fault.isEmpty() ? hint_ : fault);
    } else {
        inside_->say(FieldNote::Kind::Fault, fault);
        inside_->setVisible(!fault.isEmpty());
        placeNoteInside();
    }
    update();
}

/// The text ends before the note.
void OrderField::placeNoteInside() {
    const QSize size = inside_->sizeHint();
    inside_->setGeometry(width() - kNoteMargin - size.width(), (height() - size.height()) / 2,
                         size.width(), size.height());
    QMargins margins = textMargins();
    margins.setRight(inside_->isHidden() ? margins.left() : size.width() + 2 * kNoteMargin);
    setTextMargins(margins);
}

void OrderField::resizeEvent(QResizeEvent* event) {
    TextField::resizeEvent(event);
    placeNoteInside();
}

void OrderField::paintEvent(QPaintEvent* event) {
    TextField::paintEvent(event);
    if (fault_.isEmpty())
        return;
    QPainter painter(this);
    look::drawFrame(painter, rect(), kRadius, look::kRed, Qt::NoBrush, hasFocus() ? 2 : 1);
}

} // namespace orderform
