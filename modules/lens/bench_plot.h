#pragma once

#include "common/axes.h"
#include "lens/about.h"
#include "lens/bench.h"
#include "lens/rays.h"

#include <QWidget>

#include <optional>

namespace lens {

/// The bench seen from the side. Heights have a scale of their own, larger than that of lengths.
/// Object and screen are moved with the mouse, the object's tip up and down too.
class BenchPlot : public QWidget {
public:
    explicit BenchPlot(Bench& bench, QWidget* parent = nullptr);

    void setShown(const Shown& shown);
    QSize minimumSizeHint() const override { return {320, 160}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Grip { None, Object, Screen };

    void fit();
    void paintAxis(QPainter& painter) const;
    void paintLens(QPainter& painter) const;
    void paintScreen(QPainter& painter) const;
    void paintBeam(QPainter& painter) const;
    void paintRays(QPainter& painter) const;
    void paintArrows(QPainter& painter) const;
    void paintPoint(QPainter& painter, QPointF place, const char16_t* name, QPointF offset) const;

    QPointF pixel(QPointF place) const { return axes_.pixel(place.x(), place.y()); }
    double left() const;
    double right() const;
    Grip gripAt(QPointF pixel) const;
    void pullTo(QPointF pixel);

    Bench& bench_;
    Shown shown_;
    common::Axes axes_;
    Grip grip_ = Grip::None;
    bool pullsTip_ = false;
};

} // namespace lens
