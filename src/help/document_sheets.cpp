#include "help/document_sheets.h"

#include "help/sheet_recorder.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "page/twips.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace help {

namespace {

using page::kTwipsPerPixel;

/// Text for the screen is large on paper.
constexpr double kReduction = .95;

// At the foot of a sheet, in pixels.
constexpr double kFootHeight = 32; ///< with the space above it
constexpr page::SurfaceId kSurface = page::SurfaceId::Printer;

/// What the sheets of a document have in common; lengths in pixels as laid out.
struct Shape {
    explicit Shape(const platform::Paper& paper)
        : printable(QSizeF(paper.printableWidth, paper.printableHeight) /
                    (kTwipsPerPixel * kReduction)),
          text(printable - QSizeF(0, kFootHeight)) {}

    QSizeF printable;
    QSizeF text; ///< the foot left out
};

int sheetAt(const Shape& shape, double y) {
    return static_cast<int>(y / shape.text.height());
}

bool isHeading(const QTextBlock& block) {
    return block.blockFormat().headingLevel() > 0;
}

/// Moves headings whose text begins on the next sheet there.
void keepHeadings(QTextDocument& document, const Shape& shape) {
    const auto* layout = document.documentLayout();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlock next = block.next();
        if (!isHeading(block) || !next.isValid() ||
            sheetAt(shape, layout->blockBoundingRect(block).top()) ==
                sheetAt(shape, layout->blockBoundingRect(next).top()))
            continue;
        QTextBlockFormat format;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).mergeBlockFormat(format);
    }
}

void layOut(QTextDocument& document, const Shape& shape) {
    document.setDocumentMargin(0);
    document.setUseDesignMetrics(true);
    document.setPageSize(shape.text);
    keepHeadings(document, shape);
}

std::vector<page::DrawnOperation> drawnOn(int sheet, const QTextDocument& document,
                                          const Shape& shape, const page::TextMetrics& metrics) {
    SheetRecorder recorder(shape.text, metrics);
    QPainter painter(&recorder);
    const QRectF part(QPointF(0, sheet * shape.text.height()), shape.text);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, QColor::fromRgb(look::kInk));
    painter.translate(0, -part.top());
    document.documentLayout()->draw(&painter, context);
    painter.end();
    return recorder.operations();
}

void addFoot(const QString& title, int number, int count, const Shape& shape,
             const page::TextMetrics& metrics, page::Sheet& sheet) {
    page::Font font;
    font.points = look::kButtonPx * 0.75;
    const double y = shape.printable.height() * kTwipsPerPixel - metrics.height(font);
    const QString place = QStringLiteral("%1 / %2").arg(number).arg(count);
    const double width = metrics.width(font, place);
    for (const auto& [x, words] :
         {std::pair(0.0, title),
          std::pair(shape.printable.width() * kTwipsPerPixel - width, place)})
        sheet.operations.emplace_back(page::TextOperation{kSurface, x, y, words, font, look::kMuted,
                                                          metrics.width(font, words)});
}

/// Where a link stands in a line of its block.
void addLink(const QString& address, const QString& words, const QRectF& area, const Shape& shape,
             std::vector<page::Sheet>& sheets) {
    const auto sheet = static_cast<std::size_t>(sheetAt(shape, area.center().y()));
    if (sheet >= sheets.size())
        return;
    const double top = area.top() - double(sheet) * shape.text.height();
    sheets[sheet].links.push_back({kSurface, area.left() * kTwipsPerPixel, top * kTwipsPerPixel,
                                   area.width() * kTwipsPerPixel, area.height() * kTwipsPerPixel,
                                   address, QString(), words});
}

void addLinksOf(const QTextBlock& block, QPointF corner, const Shape& shape,
                std::vector<page::Sheet>& sheets) {
    for (auto each = block.begin(); !each.atEnd(); ++each) {
        const QTextFragment fragment = each.fragment();
        const QString address = fragment.charFormat().anchorHref();
        if (address.isEmpty())
            continue;
        const int from = fragment.position() - block.position();
        const int to = from + fragment.length();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const int first = std::max(from, line.textStart());
            const int last = std::min(to, line.textStart() + line.textLength());
            if (first >= last)
                continue;
            const double left = line.cursorToX(first);
            addLink(address, fragment.text().simplified(),
                    QRectF(left, line.y(), line.cursorToX(last) - left, line.height())
                        .translated(corner),
                    shape, sheets);
        }
    }
}

} // namespace

std::vector<page::Sheet> documentSheets(QTextDocument& document, const QString& title,
                                        const platform::Paper& paper,
                                        const page::TextMetrics& metrics) {
    const Shape shape(paper);
    layOut(document, shape);
    std::vector<page::Sheet> sheets;
    for (int i = 0; i < document.pageCount(); ++i) {
        page::Sheet sheet{};
        sheet.width = paper.width / kReduction;
        sheet.height = paper.height / kReduction;
        sheet.surfaces = {{kSurface, paper.left / kReduction, paper.top / kReduction,
                           paper.printableWidth / kReduction, paper.printableHeight / kReduction}};
        sheet.operations = drawnOn(i, document, shape, metrics);
        sheets.push_back(std::move(sheet));
    }
    // Behind a table stands an empty paragraph, perhaps on a sheet of its own.
    while (sheets.size() > 1 && sheets.back().operations.empty())
        sheets.pop_back();
    const int count = static_cast<int>(sheets.size());
    for (int i = 0; i < count; ++i)
        addFoot(title, i + 1, count, shape, metrics, sheets[static_cast<std::size_t>(i)]);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        addLinksOf(block, document.documentLayout()->blockBoundingRect(block).topLeft(), shape,
                   sheets);
    return sheets;
}

} // namespace help
