#include "orderform/order_sheet.h"

#include "orderform/price.h"
#include "page/surface.h"

#include <algorithm>
#include <cmath>

namespace orderform {

namespace {

using page::FillMode;
using page::SurfaceId;

// Twips. What stands on the sheet is so large, and takes the middle of the paper's printable part.
constexpr double kWidth = 10000;
constexpr double kHeight = 14400;

/// For the thickness of lines along the right edge.
constexpr double kLineRoom = 60;

constexpr double kAddresseeLeft = 5800;
constexpr double kAddresseeTop = 1600;
constexpr double kAddresseeHeight = 1970;
constexpr double kPadding = 200;
constexpr double kAddressLine = 330;

constexpr double kDetailsTop = 4240;
constexpr double kDetailsLeft = 2000; ///< of what was typed
constexpr double kDetailsLine = 440;

constexpr double kTableTop = 8780;
constexpr double kRowHeight = 440;
constexpr double kQuantityRight = 6950; ///< right edges of the columns of numbers
constexpr double kPriceRight = 8400;
constexpr double kAmountRight = kWidth - kPadding;

constexpr double kPaymentTop = 11120;
constexpr double kPaymentLine = 330;

constexpr double kSignatureTop = 12480;
constexpr double kSignatureHeight = 1800;
constexpr double kSignatureLeft = 5100;

constexpr double kTitlePoints = 20;
constexpr double kHeadingPoints = 12;
constexpr double kTextPoints = 11;
constexpr double kSmallPoints = 9;

constexpr QRgb kInk = 0xff000000;
constexpr QRgb kQuietInk = 0xff595959;
constexpr QRgb kRuleInk = 0xffa0a0a0;
constexpr QRgb kGround = 0xffeeeeee;

/// Where the order is to be sent. The publisher fills in its own address; street and town of this
/// one exist nowhere.
const QStringList kAddressee = {QStringLiteral("KAROPE"), QStringLiteral("Service des commandes"),
                                QStringLiteral("1, rue de l’Exemple"),
                                QStringLiteral("00000 Exempleville"), QStringLiteral("France")};

/// How a text is printed.
struct Style {
    double points = kTextPoints;
    bool bold = false;
    QRgb ink = kInk;
};

/// Of the table of articles.
struct Row {
    QString article, quantity, price, amount;
};

class OrderDrawing {
public:
    OrderDrawing(const Order& order, const page::TextMetrics& metrics)
        : order_(order), copies_(orderform::copies(order).value_or(0)),
          surface_(SurfaceId::Printer, kWidth, metrics, recording_) {}

    const page::Recording& recording() {
        drawTitle();
        drawAddressee();
        drawDetails();
        drawTable();
        drawPayment();
        drawSignature();
        return recording_;
    }

private:
    /// Text wider than `room` becomes smaller. `share` of the room left over stands before it: 0
    /// for text on the left, 1 for text on the right.
    void print(double x, double y, const QString& text, Style style = {}, double room = kWidth,
               double share = 0) {
        surface_.setBold(style.bold);
        surface_.setInk(style.ink);
        surface_.setFontPoints(style.points);
        for (double points = style.points; points > 1 && surface_.textWidth(text) > room;)
            surface_.setFontPoints(--points);
        surface_.setPenX(x + share * (room - surface_.textWidth(text)));
        surface_.setPenY(y);
        surface_.print(text);
    }

    void printBefore(double right, double y, const QString& text, Style style = {}) {
        print(right - kWidth, y, text, style, kWidth, 1);
    }

    void rule(double x1, double y1, double x2, double y2) {
        surface_.setInk(kRuleInk);
        surface_.line(x1, y1, x2, y2);
    }

    void frame(double left, double top, double width, double height) {
        rule(left, top, left + width, top);
        rule(left, top + height, left + width, top + height);
        rule(left, top, left, top + height);
        rule(left + width, top, left + width, top + height);
    }

    void heading(double y, const QString& text) { print(0, y, text, {kHeadingPoints, true}); }

    void drawTitle() {
        print(0, 0, QStringLiteral("Bon de commande"), {kTitlePoints, true});
        print(0, 560, QStringLiteral("À imprimer, signer et envoyer par courrier"),
              {.ink = kQuietInk});
        rule(0, 1000, kWidth, 1000);
    }

    void drawAddressee() {
        const double left = kAddresseeLeft + kPadding;
        frame(kAddresseeLeft, kAddresseeTop, kWidth - kAddresseeLeft, kAddresseeHeight);
        print(kAddresseeLeft, kAddresseeTop - 280, QStringLiteral("Destinataire"),
              {.points = kSmallPoints, .ink = kQuietInk});
        double y = kAddresseeTop + kPadding;
        for (const QString& line : kAddressee) {
            print(left, y, line, {.bold = &line == &kAddressee.first()});
            y += kAddressLine;
        }
    }

    void drawDetails() {
        heading(kDetailsTop, QStringLiteral("Expéditeur"));
        double y = kDetailsTop + 480;
        for (const Field field : kFields) {
            if (field == Field::Quantity)
                continue;
            // The second line of the address goes on from the first.
            if (field != Field::AddressMore)
                print(0, y, fieldName(field), {.ink = kQuietInk});
            print(kDetailsLeft, y, order_[field], {}, kWidth - kDetailsLeft);
            rule(kDetailsLeft, y + 320, kWidth, y + 320);
            y += kDetailsLine;
        }
    }

    void drawTable() {
        heading(kTableTop - 460, QStringLiteral("Commande"));
        surface_.fill(0, kTableTop, kWidth, kRowHeight, kGround, FillMode::Copy);
        double y = kTableTop;
        row(y,
            {QStringLiteral("Article"), QStringLiteral("Quantité"), QStringLiteral("Prix unitaire"),
             QStringLiteral("Montant")},
            {kSmallPoints, true});
        row(y += kRowHeight,
            {kArticle, QString::number(copies_), euros(kUnitPrice), euros(copiesAmount(copies_))});
        row(y += kRowHeight, {QStringLiteral("Frais de port"), {}, {}, euros(kPostage)});
        row(y += kRowHeight, {QStringLiteral("Total, toutes taxes comprises"), {}, {}, total()},
            {kTextPoints, true});
        frame(0, kTableTop, kWidth, 4 * kRowHeight);
    }

    /// `y` is its top.
    void row(double y, const Row& row, Style style = {}) {
        rule(0, y, kWidth, y);
        const double textTop = y + (kRowHeight - 20 * 1.15 * style.points) / 2;
        const double room = kQuantityRight - 900 - kPadding;
        print(kPadding, textTop, row.article, style, row.quantity.isEmpty() ? kWidth : room);
        printBefore(kQuantityRight, textTop, row.quantity, style);
        printBefore(kPriceRight, textTop, row.price, style);
        printBefore(kAmountRight, textTop, row.amount, style);
    }

    void drawPayment() {
        heading(kPaymentTop - 60, QStringLiteral("Règlement"));
        double y = kPaymentTop + 300;
        for (const QString& line :
             {QStringLiteral("Joignez un chèque de %1 à l’ordre de KAROPE, et écrivez votre nom au "
                             "dos.")
                  .arg(total()),
              QStringLiteral("Postez le bon et le chèque, dans une enveloppe affranchie, à "
                             "l’adresse du destinataire.")}) {
            print(0, y, line);
            y += kPaymentLine;
        }
    }

    void drawSignature() {
        const double gap = 200;
        const Style style{.points = kSmallPoints, .ink = kQuietInk};
        frame(0, kSignatureTop, kSignatureLeft - gap, kSignatureHeight);
        frame(kSignatureLeft, kSignatureTop, kWidth - kSignatureLeft, kSignatureHeight);
        print(kPadding, kSignatureTop + 120, QStringLiteral("Date"), style);
        print(kSignatureLeft + kPadding, kSignatureTop + 120,
              QStringLiteral("Signature (d’un parent si vous êtes mineur)"), style,
              kWidth - kSignatureLeft - 2 * kPadding);
    }

    QString total() const { return euros(totalAmount(copies_)); }

    const Order& order_;
    int copies_;
    page::Recording recording_;
    page::Surface surface_;
};

} // namespace

page::Sheet orderSheet(const Order& order, const platform::Paper& paper,
                       const page::TextMetrics& metrics) {
    // Laid out larger than the paper, the sheet is reduced when it is printed.
    const double enlargement = std::max({1.0, kWidth / std::max(1.0, paper.printableWidth),
                                         kHeight / std::max(1.0, paper.printableHeight)});
    page::Sheet sheet;
    sheet.title = QStringLiteral("Bon de commande");
    sheet.width = paper.width * enlargement;
    sheet.height = paper.height * enlargement;
    const double left = paper.left + (paper.printableWidth - kWidth / enlargement) / 2;
    sheet.surfaces = {{SurfaceId::Printer, left * enlargement, paper.top * enlargement,
                       kWidth + kLineRoom, kHeight}};
    OrderDrawing drawing(order, metrics);
    page::putOnSheet(drawing.recording(), metrics, sheet);
    return sheet;
}

} // namespace orderform
