#include "page/pictures/svg_size.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace page {

namespace {

struct Unit {
    QLatin1String name;
    double pixels;
};

constexpr double kPixelsPerInch = 96;
constexpr std::array<Unit, 7> kUnits{{{QLatin1String(""), 1},
                                      {QLatin1String("px"), 1},
                                      {QLatin1String("pt"), kPixelsPerInch / 72},
                                      {QLatin1String("pc"), kPixelsPerInch / 6},
                                      {QLatin1String("mm"), kPixelsPerInch / 25.4},
                                      {QLatin1String("cm"), kPixelsPerInch / 2.54},
                                      {QLatin1String("in"), kPixelsPerInch}}};

/// A length in pixels; 0 when it is none, or one that depends on what is around the picture.
double length(QStringView text) {
    text = text.trimmed();
    qsizetype unitAt = text.size();
    while (unitAt > 0 && text[unitAt - 1].isLetter())
        --unitAt;
    bool isNumber = false;
    const double number = text.first(unitAt).toDouble(&isNumber);
    const auto unit = std::find_if(kUnits.begin(), kUnits.end(), [&](const Unit& candidate) {
        return text.mid(unitAt) == candidate.name;
    });
    if (!isNumber || unit == kUnits.end() || !std::isfinite(number))
        return 0;
    return std::max(number * unit->pixels, 0.0);
}

QSizeF viewBoxSize(const QString& viewBox) {
    static const QRegularExpression separator(QStringLiteral("[\\s,]+"));
    const QStringList numbers = viewBox.split(separator, Qt::SkipEmptyParts);
    if (numbers.size() != 4)
        return {};
    return {length(numbers[2]), length(numbers[3])};
}

} // namespace

QSizeF svgSize(const QXmlStreamAttributes& attributes) {
    const QSizeF box = viewBoxSize(attributes.value(QLatin1String("viewBox")).toString());
    const double width = length(attributes.value(QLatin1String("width")));
    const double height = length(attributes.value(QLatin1String("height")));
    if (width > 0 && height > 0)
        return {width, height};
    if (box.isEmpty())
        return {};
    if (width > 0)
        return {width, width * box.height() / box.width()};
    if (height > 0)
        return {height * box.width() / box.height(), height};
    return box;
}

} // namespace page
