#include "reaction/amount_bars.h"

#include "common/axes.h"
#include "common/formula.h"
#include "common/french_number.h"
#include "common/qt_text.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QPainter>

#include <algorithm>

namespace reaction {

namespace {

constexpr double kTop = 34;   ///< room for the name of the axis
constexpr double kBelow = 52; ///< room for the names of the species
constexpr double kRight = 16;
constexpr double kWidest = 72; ///< of a bar
constexpr double kShare = 0.5; ///< of its room
constexpr double kAir = 0.12;  ///< above the highest bar, for its number
constexpr double kLeast = 1;   ///< mol; an axis cannot have no length

struct Inks {
    QRgb edge;
    QRgb fill;
};

constexpr Inks kReactantInks = {look::kBlue, 0xffbcd0e8};
constexpr Inks kProductInks = {look::kGreen, 0xffbfe0c8};

} // namespace

AmountBars::AmountBars(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    look::setAccessibleRole(*this, QAccessible::Graphic);
    setAccessibleName(QStringLiteral("Quantités de matière"));
    experiment_.onChanged([this] { show(); });
    experiment_.onMoved([this] { show(); });
    show();
}

void AmountBars::show() {
    QStringList amounts;
    for (std::size_t i = 0; i < experiment_.reaction().count; ++i)
        amounts += QStringLiteral("%1\u00A0: %2\u00A0mol")
                       .arg(QString::fromUtf16(experiment_.reaction().all.at(i).name),
                            common::qtText(common::frenchNumber(experiment_.amountNow(i), 2)));
    setAccessibleDescription(amounts.join(QStringLiteral(", ")));
    update();
}

/// The highest bar from start to end, so that the axis stands still meanwhile.
double AmountBars::most() const {
    const Mixture& mixture = experiment_.mixture();
    double most = kLeast;
    for (std::size_t i = 0; i < experiment_.reaction().count; ++i)
        most = std::max(most, mixture.amount(i, i < kReactants ? 0 : mixture.maximum()));
    return most;
}

double AmountBars::room(const common::Axes& axes) const {
    return axes.area().width() / static_cast<double>(experiment_.reaction().count);
}

double AmountBars::middle(const common::Axes& axes, std::size_t species) const {
    return axes.area().left() + room(axes) * (static_cast<double>(species) + 0.5);
}

void AmountBars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(look::kPaper));
    const common::Axes axes(QRectF(rect()).adjusted(common::Axes::kLeft, kTop, -kRight, -kBelow),
                            {0, 1}, {0, most() * (1 + kAir)});
    axes.paintUp(painter, QStringLiteral("n\\text{ (mol)}"));
    for (std::size_t i = 0; i < experiment_.reaction().count; ++i) {
        paintBar(painter, axes, i);
        paintName(painter, axes, i);
    }
    const double ground = common::sharp(painter, axes.area().bottom());
    painter.setPen(QPen(QColor::fromRgb(look::kMuted), look::crisp(painter)));
    painter.drawLine(QPointF(axes.area().left(), ground), QPointF(axes.area().right(), ground));
}

void AmountBars::paintBar(QPainter& painter, const common::Axes& axes, std::size_t species) const {
    const bool isReactant = species < kReactants;
    const Inks& inks = isReactant ? kReactantInks : kProductInks;
    const double width = look::snapped(painter, std::min(kWidest, room(axes) * kShare));
    const double left = look::snapped(painter, middle(axes, species) - width / 2);
    const auto bar = [&](double amount) {
        const double top = look::snapped(painter, axes.pixel(0, amount).y());
        return QRectF(left, top, width, axes.area().bottom() - top);
    };
    const Mixture& mixture = experiment_.mixture();
    if (isReactant || !experiment_.hidesResults()) {
        QPen pen(QColor::fromRgb(inks.edge), look::crisp(painter));
        pen.setDashPattern({3, 3});
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        const double half = look::crisp(painter) / 2;
        painter.drawRect(bar(mixture.amount(species, isReactant ? 0 : mixture.maximum()))
                             .adjusted(half, half, -half, 0));
    }
    const double now = experiment_.amountNow(species);
    if (now > 0)
        look::drawFrame(painter, bar(now), 0, inks.edge, QColor::fromRgb(inks.fill));
    painter.setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
    painter.setPen(QColor::fromRgb(inks.edge));
    painter.drawText(
        QRectF(middle(axes, species) - room(axes) / 2, bar(now).top() - 20, room(axes), 18),
        Qt::AlignCenter,
        common::qtText(common::frenchNumber(now, 2)) + QStringLiteral("\u00A0mol"));
}

/// The formula, and below it what becomes of the species: words, since a colour is not enough.
void AmountBars::paintName(QPainter& painter, const common::Axes& axes, std::size_t species) const {
    const Species& which = experiment_.reaction().all.at(species);
    const common::Formula formula(common::qtText(formulaOf(which.formula)), 15);
    const double x = middle(axes, species);
    painter.setPen(QColor::fromRgb(look::kInk));
    formula.paint(painter, {x - formula.width() / 2, axes.area().bottom() + 20});
    const Limiting limiting = experiment_.mixture().limiting();
    const bool limits = species == 0   ? limiting == Limiting::First || limiting == Limiting::Both
                        : species == 1 ? limiting == Limiting::Second || limiting == Limiting::Both
                                       : false;
    const bool told = limits && showsEnd(experiment_);
    painter.setFont(
        look::interfaceFont(look::kButtonPx, told ? look::Weight::Bold : look::Weight::Regular));
    painter.setPen(QColor::fromRgb(told ? look::kRed : look::kMuted));
    painter.drawText(QRectF(x - room(axes) / 2, axes.area().bottom() + 28, room(axes), 18),
                     Qt::AlignCenter,
                     told                   ? QStringLiteral("limitant")
                     : species < kReactants ? QStringLiteral("réactif")
                                            : QStringLiteral("produit"));
}

} // namespace reaction
