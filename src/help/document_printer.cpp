#include "help/document_printer.h"

#include "look/interface_font.h"
#include "look/palette.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrinter>
#include <QTextDocument>

namespace help {

namespace {

/// Text for the screen is large on paper.
constexpr double kReduction = .95;
constexpr double kScreenDpi = 96;

constexpr double kFootHeight = 32; ///< with the space above it
constexpr double kFootText = 16;

struct Sheets {
    QSizeF text; ///< of a sheet, the foot left out
    int count;
};

Sheets layOut(const QPrinter& device, QTextDocument& document, double scale) {
    const QSizeF printable = device.pageLayout().paintRectPixels(device.resolution()).size();
    const QSizeF text = printable / scale - QSizeF(0, kFootHeight);
    document.setDocumentMargin(0);
    document.setUseDesignMetrics(true);
    document.setPageSize(text);
    return {text, document.pageCount()};
}

void drawText(QPainter& painter, const QTextDocument& document, const Sheets& sheets, int sheet) {
    const QRectF part(QPointF(0, sheet * sheets.text.height()), sheets.text);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, QColor::fromRgb(look::kInk));
    painter.save();
    painter.translate(0, -part.top());
    painter.setClipRect(part);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void drawFoot(QPainter& painter, const QString& title, const Sheets& sheets, int sheet) {
    const QRectF foot(0, sheets.text.height() + kFootHeight - kFootText, sheets.text.width(),
                      kFootText);
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                     QStringLiteral("%1 / %2").arg(sheet + 1).arg(sheets.count));
}

} // namespace

bool printDocument(const output::QtPrinter& printer, QTextDocument& document,
                   const QString& title) {
    QPrinter& device = printer.device();
    device.setDocName(title);
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = device.resolution() / kScreenDpi * kReduction;
    const Sheets sheets = layOut(device, document, scale);
    painter.scale(scale, scale);
    for (int sheet = 0; sheet < sheets.count; ++sheet) {
        if (sheet > 0 && !device.newPage())
            return false;
        drawText(painter, document, sheets, sheet);
        drawFoot(painter, title, sheets, sheet);
    }
    return painter.end() && device.printerState() != QPrinter::Error;
}

} // namespace help
