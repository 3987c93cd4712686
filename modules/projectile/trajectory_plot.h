#pragma once

#include "common/axes.h"
#include "projectile/about.h"
#include "projectile/experiment.h"

#include <QWidget>

namespace projectile {

/// The throw seen from the side: ground, paths, projectile, vectors. Both axes have one scale. At
/// its start the throw is aimed by pulling the head of the velocity with the mouse.
class TrajectoryPlot : public QWidget {
public:
    explicit TrajectoryPlot(Experiment& experiment, QWidget* parent = nullptr);

    void setShown(const Shown& shown);
    QSize minimumSizeHint() const override { return {320, 160}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent*) override;

private:
    void fit();
    void paintGround(QPainter& painter) const;
    void paintLandmarks(QPainter& painter) const;
    void paintPath(QPainter& painter, const Flight& flight, QRgb ink, Qt::PenStyle style) const;
    void paintPoints(QPainter& painter) const;
    void paintProjectile(QPainter& painter) const;
    void paintVectors(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;
    void paintScales(QPainter& painter) const;
    void paintReading(QPainter& painter) const;

    QPointF projectilePixel() const;
    QPointF speedHead() const;
    bool canAimAt(const QPointF& pixel) const;
    void aimAt(const QPointF& pixel);

    Experiment& experiment_;
    Shown shown_;
    common::Axes axes_;
    bool aiming_ = false;
    std::optional<QPointF> pointer_;
};

} // namespace projectile
