#pragma once

#include "look/keeps_colours.h"

#include <QImage>
#include <QString>
#include <QWidget>

namespace viewer {

/// The cover picture over the page area while the program sets itself up, centred, with a line
/// just below it. A picture larger than the area is shown smaller.
class Cover : public QWidget, public look::KeepsColours {
public:
    explicit Cover(QWidget* parent);

    /// The picture in the file `path`; without one, or with one that cannot be read, the line
    /// stands alone. The file is read when the cover is first painted.
    void setPicture(const QString& path);

    /// Where the picture goes, in pixels; empty when there is none.
    QRect pictureRect() const;
    /// Where the line goes.
    QRect labelRect() const;

    QRegion keptArea() const override { return pictureRect(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString path_;
    QSize pictureSize_;
    QImage picture_;
};

} // namespace viewer
