#pragma once

#include <QWidget>

namespace look {

class PictureBox;

/// Shows what leans out of the surface of a picture box into its margin (platform/ink_area.h). It
/// stands behind the box, on a parent that has room around it; where the view cuts a scrolled page,
/// it shows nothing beyond the cut.
class InkRim : public QWidget {
public:
    /// `parent` is the box's parent or one further up.
    InkRim(PictureBox& box, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    PictureBox& box_;
};

} // namespace look
