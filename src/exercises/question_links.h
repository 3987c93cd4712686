#pragma once

#include "look/icon.h"
#include "page/faces/font_book.h"
#include "page/recording.h"

#include <QAbstractButton>

namespace exercises {

/// What leads from a question to a course page: shown where the question placed it, followed by a
/// click, Enter or Space. A click leaves the keyboard where it is.
class QuestionLink : public QAbstractButton {
public:
    explicit QuestionLink(QWidget* parent);

    const QString& tag() const { return tag_; }

protected:
    /// Room for the line that shows the keyboard, around the link itself, in pixels.
    static constexpr int kMargin = 4;

    void setTag(const QString& tag) { tag_ = tag; }
    void paintRing(QPainter& painter) const;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString tag_;
};

/// `Labelien`: a caption in the font and ink of the question.
class LinkCaption : public QuestionLink {
public:
    LinkCaption(const page::FontBook& fonts, QWidget* parent);

    /// Takes caption, place and target.
    void show(const page::FieldOperation& field);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const page::FontBook& fonts_;
    page::FieldOperation field_;
};

/// `Image1` and `Icovideo`: a drawing of 24 pixels.
class LinkIcon : public QuestionLink {
public:
    LinkIcon(const QString& drawing, QWidget* parent);

    void show(const page::FieldOperation& field);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    look::Icon icon_;
};

/// Where a field stands on the question area, in whole pixels, held where controls can be.
QPoint placeOf(const page::FieldOperation& field);

} // namespace exercises
