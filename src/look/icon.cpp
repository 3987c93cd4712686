#include "look/icon.h"

#include "look/palette.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace look {

namespace {

constexpr double kFadedShare = 0.4;

/// Length of a colour as the drawings write it ("#1d4e89").
constexpr qsizetype kColourLength = 7;

QByteArray written(QRgb colour) {
    return '#' + QByteArray::number(colour & 0xffffff, 16).rightJustified(6, '0');
}

void makeWhite(QByteArray& drawing) {
    drawing.replace(written(kBlue), "#ffffff");
    drawing.replace(written(kPressedTint), "none");
}

/// Mixes every colour with the ground. Over a plain ground this equals painting the whole drawing
/// half transparent, without the joints that transparent lines would show.
void fade(QByteArray& drawing, QRgb ground) {
    for (qsizetype at = drawing.indexOf('#'); at >= 0; at = drawing.indexOf('#', at + 1)) {
        bool isColour = false;
        const QRgb colour = drawing.mid(at + 1, kColourLength - 1).toUInt(&isColour, 16);
        if (isColour)
            drawing.replace(at, kColourLength, written(blend(colour, ground, kFadedShare)));
    }
}

} // namespace

Icon::Icon(QString name) : name_(std::move(name)) {}
Icon::~Icon() = default;
Icon::Icon(Icon&&) noexcept = default;
Icon& Icon::operator=(Icon&&) noexcept = default;

void Icon::paint(QPainter& painter, const QRectF& where, Style style, QRgb ground) const {
    if (isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    renderer(style, ground).render(&painter, where);
    painter.restore();
}

QString Icon::fileOf(const QString& name) {
    const QString folder = name.contains(u'/') ? QString() : QStringLiteral("icons/");
    return QStringLiteral(":/look/") + folder + name + QStringLiteral(".svg");
}

QSvgRenderer& Icon::renderer(Style style, QRgb ground) const {
    auto& held = renderers_.at(static_cast<std::size_t>(style));
    if (held && (style != Style::Faded || ground == fadedGround_))
        return *held;
    QFile file(fileOf(name_));
    QByteArray drawing = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (style == Style::White)
        makeWhite(drawing);
    if (style == Style::Faded) {
        fade(drawing, ground);
        fadedGround_ = ground;
    }
    held = std::make_unique<QSvgRenderer>(drawing);
    return *held;
}

} // namespace look
