#include "authoring/layout.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace authoring {

namespace {

constexpr int kCellMargin = 8;
constexpr int kAboveText = 3;
constexpr int kBelowText = 1;
/// As below a frame.
constexpr int kBelowTable = 4;
/// A cell's number has two places, and the renderer a table of thirty edges.
constexpr std::size_t kMostColumns = 30;

struct CellText {
    InlineText text;
    Extent extent;
    Alignment alignment = Alignment::Left;
    std::size_t at = 0;
};
struct RowTexts {
    std::vector<CellText> cells;
    bool heading = false;
    bool empty = true;
};

int cellPixels(double twips) {
    return static_cast<int>(std::ceil(twips / page::kTwipsPerPixel)) + 2 * kCellMargin + 2;
}

/// Left edges of the columns, and the right edge of the last: as wide as their texts ask, and what
/// is left over in proportion. Empty when the texts do not fit.
std::vector<int> edges(const std::vector<RowTexts>& rows, std::size_t columns, int width) {
    std::vector<int> narrowest(columns, 2 * kCellMargin);
    std::vector<int> natural(columns, 2 * kCellMargin);
    for (const RowTexts& row : rows)
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            narrowest[i] = std::max(narrowest[i], cellPixels(row.cells[i].extent.widest));
            natural[i] = std::max(natural[i], cellPixels(row.cells[i].extent.whole));
        }
    const int least = std::accumulate(narrowest.begin(), narrowest.end(), 0);
    const int most = std::accumulate(natural.begin(), natural.end(), 0);
    if (least > width)
        return {};
    std::vector<int> edge{0};
    int sum = 0; // of widths, before rounding down to the share
    int base = 0;
    for (std::size_t i = 0; i < columns; ++i) {
        if (most <= width) {
            sum += natural[i];
            edge.push_back(sum * width / most);
        } else {
            base += narrowest[i];
            sum += natural[i] - narrowest[i];
            edge.push_back(base + (width - least) * sum / std::max(1, most - least));
        }
    }
    edge.back() = width;
    return edge;
}

Placed placed(Alignment alignment) {
    return alignment == Alignment::Centre  ? Placed::Centre
           : alignment == Alignment::Right ? Placed::Right
                                           : Placed::Left;
}

RowTexts readRow(const Block& row, const Style& style, Texts& texts) {
    RowTexts read{{}, row.heading, true};
    Style cellStyle = style;
    cellStyle.bold = row.heading;
    for (const Block& cell : row.children) {
        CellText text{flatten(cell.inlines, cellStyle, texts), {}, cell.alignment, cell.at};
        text.extent = extentOf(text.text, texts.ruler);
        read.empty = read.empty && text.text.atoms.empty();
        read.cells.push_back(std::move(text));
    }
    return read;
}

} // namespace

void Layout::table(const Block& block) {
    if (!inFlow() || listDepth_ > 0)
        return fault(block.at, u"un tableau ne va ni dans un cadre ni dans une liste");
    std::vector<RowTexts> rows;
    std::size_t columns = 0;
    for (const Block& row : block.children) {
        rows.push_back(readRow(row, style_, texts_));
        columns = std::max(columns, rows.back().cells.size());
        if (rows.back().heading && rows.back().empty)
            rows.pop_back(); // a table without headings
    }
    const std::vector<int> edge = edges(rows, columns, areaRight());
    if (edge.empty() || columns > kMostColumns)
        return fault(block.at, u"ce tableau est trop large pour la page : le partager");
    leave(Flow::Wide, "0.4");
    writer_.style(style_);
    for (const char* colour : {"##TCH07", "##TCB07", "##TCG15", "##TCI07", "##TCD15"})
        writer_.directive(QLatin1String(colour));
    for (const RowTexts& row : rows) {
        Style style = style_;
        style.bold = row.heading;
        std::vector<std::vector<TextLine>> cells;
        int rise = 0; // the first lines of all cells stand level
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            cells.push_back(breakLines(row.cells[i].text, edge[i + 1] - edge[i] - 2 * kCellMargin,
                                       texts_.ruler, texts_.faults));
            if (cells.back().empty())
                cells.back().push_back({{}, 0, 0, 0, row.cells[i].at});
            rise = std::max(rise, cells.back().front().rise);
        }
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const CellText& cell = row.cells[i];
            writer_.comesFrom(cell.at);
            writer_.style(style);
            writer_.directive(QStringLiteral("##TAB%1%2%3")
                                  .arg(threeDigits(edge[i]), threeDigits(edge[i + 1]))
                                  .arg(static_cast<int>(i) + 1, 2));
            writer_.movePenY(kAboveText + rise);
            cells[i].front().rise = 0;
            const Column column{edge[i] + kCellMargin, edge[i + 1] - kCellMargin,
                                edge[i] + kCellMargin};
            writeLines(writer_, cells[i], column, placed(cell.alignment), style);
            writer_.movePenY(kBelowText);
        }
        writer_.style(style_);
        writer_.directive(row.heading ? QStringLiteral("##FINTAC04") : QStringLiteral("##FINTAB"));
    }
    writer_.movePenY(kBelowTable);
}

} // namespace authoring
