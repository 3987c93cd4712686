#include "lens/readings.h"

#include "common/formula.h"
#include "common/french_number.h"
#include "common/reading.h"
#include "lens/laws.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

namespace lens {

namespace {

constexpr int kLines = 5;
constexpr int kEdges = 6; ///< above the first line and below the last
constexpr double kLeft = 10;
constexpr double kColumn = 78; ///< where paintReadings begins
constexpr double kBaseline = 18;

QString number(double value, int decimals, const QString& unit) {
    return (value > 0 ? QStringLiteral("+") : QString()) + common::frenchNumber(value, decimals) +
           unit;
}

QString centimetres(double value) {
    return number(value, 1, QStringLiteral("\u00A0cm"));
}

QString unknown() {
    return QStringLiteral("?");
}

QString text(const char16_t* utf16) {
    return QString::fromUtf16(utf16);
}

std::vector<common::Reading> ofImage(const Bench& bench) {
    const Image image = bench.image();
    const bool hidden = bench.hidesResults();
    const auto shown = [&](const QString& value) {
        return hidden ? unknown() : image.isAtInfinity() ? QStringLiteral("∞") : value;
    };
    return {{text(kImagePlace), shown(centimetres(image.place()))},
            {text(kImageHeight), shown(centimetres(image.height()))}};
}

/// "γ = −2,00 : réelle, renversée, agrandie", a formula.
QString likeness(const Bench& bench) {
    if (bench.hidesResults())
        return QStringLiteral("\\text{à trouver}");
    const Image image = bench.image();
    const QString words = QStringLiteral("\\text{%1}").arg(describe(image));
    return image.isAtInfinity() ? words
                                : QStringLiteral("γ\u00A0=\u00A0%1\\text{\u00A0: }%2")
                                      .arg(number(image.magnification(), 2, {}), words);
}

std::vector<common::Reading> ofLens(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    const bool hidden = bench.hidesLens();
    return {{QStringLiteral("f\u200A′"), hidden ? unknown() : centimetres(arrangement.focal())},
            {QStringLiteral("C"),
             hidden ? unknown() : number(arrangement.vergence(), 2, QStringLiteral("\u00A0δ"))}};
}

/// One line of words or a formula behind the name of a group.
void paintLine(QPainter& painter, double top, const QString& group, const QString& formula) {
    painter.setFont(look::interfaceFont(look::kButtonPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(kLeft, top + kBaseline), group);
    painter.setPen(QColor::fromRgb(look::kInk));
    common::Formula(formula, look::kLabelPx).paint(painter, {kColumn, top + kBaseline});
}

} // namespace

Readings::Readings(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    setFixedHeight(kLines * common::kReadingHeight + kEdges);
    setMinimumWidth(360); // narrower, lines would be cut
    setAccessibleName(QStringLiteral("Valeurs de l’objet, de la lentille et de l’image"));
    bench_.onChanged([this] { show(); });
    show();
}

void Readings::show() {
    const Image image = bench_.image();
    setAccessibleDescription(bench_.hidesResults() ? QStringLiteral("image à trouver")
                             : image.isAtInfinity()
                                 ? describe(image)
                                 : QStringLiteral("image à %1, %2, grandissement %3")
                                       .arg(centimetres(image.place()), describe(image),
                                            number(image.magnification(), 2, {})));
    update();
}

void Readings::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kPaper));
    const Arrangement& arrangement = bench_.arrangement();
    const bool hidden = bench_.hidesResults();
    double top = kEdges / 2;
    const auto group = [&](const QString& name, const std::vector<common::Reading>& readings) {
        top = common::paintReadings(painter, top, width(), name, readings, 2);
    };
    group(QStringLiteral("Objet"), {{text(kObjectPlace), centimetres(arrangement.object())},
                                    {text(kObjectHeight), centimetres(arrangement.height)}});
    group(QStringLiteral("Lentille"), ofLens(bench_));
    group(QStringLiteral("Image"), ofImage(bench_));
    paintLine(painter, top, {}, likeness(bench_));
    top += common::kReadingHeight;
    paintLine(painter, top, QStringLiteral("Relation"),
              hidden ? unknown() : conjugation(arrangement));
}

} // namespace lens
