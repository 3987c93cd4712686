#pragma once

#include "look/text_field.h"
#include "orderform/field_note.h"

namespace orderform {

/// A field of the order form, which shows what is wrong with its text.
class OrderField : public look::TextField {
public:
    explicit OrderField(QWidget* parent);

    /// Where faults are said: in place of `hint`, in a note of the form. Without one they stand in
    /// the field itself, at its right end.
    void setNoteBeside(FieldNote* note, const QString& hint);

    /// A short French text, empty for none.
    void setFault(const QString& fault);
    const QString& fault() const { return fault_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeNoteInside();

    FieldNote* inside_;
    FieldNote* beside_ = nullptr;
    QString hint_;
    QString fault_;
};

} // namespace orderform
