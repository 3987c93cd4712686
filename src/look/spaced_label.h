#pragma once

#include <QLabel>

namespace look {

/// Plain text in the size of labels, whose lines stand further apart than the font asks for. Lines
/// end at CR LF or LF and are wrapped at the label's width, inside a word that is longer than a
/// line. A line that begins with spaces goes on below as far to the right as it began.
class SpacedLabel : public QLabel {
public:
    /// `lineHeight` in pixels; `baseline` of the text in a line, from its top.
    SpacedLabel(int lineHeight, int baseline, QWidget* parent);

    /// Height that the text takes in a label of `width` pixels.
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Visits the lines as they are shown: text and distance from the left edge.
    template <class Visit>
    void forEachLine(int width, Visit visit) const;

    int lineHeight_;
    int baseline_;
};

} // namespace look
