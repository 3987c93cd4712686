#pragma once

#include <QLabel>

namespace setupinfo {

/// Lines of text 22 pixels apart. One that is too long goes on below, as far to the right as it
/// began.
class DescriptionLabel : public QLabel {
public:
    /// `width` in pixels. The label takes the height that its lines need.
    DescriptionLabel(const QString& text, int width, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Visits the lines as they are shown: text and distance from the left edge.
    template <class Visit>
    void forEachLine(Visit visit) const;
};

} // namespace setupinfo
