#pragma once

#include "page/recording.h"
#include "page/text_metrics.h"

#include <QPaintDevice>

#include <memory>
#include <vector>

namespace help {

/// A device that keeps what a text document paints on it as operations of a sheet: runs of text,
/// upright rectangles, pictures, and the dots of lists as letters. One unit is a pixel of 96 to the
/// inch, and operations are on SurfaceId::Printer, which is as large as the device. What lies
/// outside it is left out.
class SheetRecorder : public QPaintDevice {
public:
    SheetRecorder(QSizeF size, const page::TextMetrics& metrics);
    ~SheetRecorder() override;

    const std::vector<page::DrawnOperation>& operations() const { return operations_; }

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QSizeF size_;
    std::vector<page::DrawnOperation> operations_;
    std::unique_ptr<Engine> engine_;
};

} // namespace help
