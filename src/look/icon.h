#pragma once

#include <QByteArray>
#include <QRectF>
#include <QRgb>
#include <QString>

#include <array>
#include <memory>

class QPainter;
class QSvgRenderer;

namespace look {

/// A line drawing of the folder icons/, in blue with a pale accent, or a coloured one of another
/// folder, named with it ("faces/4"). It is read when it is first painted and painted as curves, so
/// that it is crisp at every density and at every place.
class Icon {
public:
    /// `name` is that of the file, without its ending. A name without a file paints nothing.
    explicit Icon(QString name = {});
    ~Icon();
    Icon(Icon&&) noexcept;
    Icon& operator=(Icon&&) noexcept;

    bool isEmpty() const { return name_.isEmpty(); }
    const QString& name() const { return name_; }

    /// The resource that holds a drawing.
    static QString fileOf(const QString& name);

    enum class Style {
        Coloured,
        White, ///< lines only, for blue ground
        Faded, ///< at 40 % over the ground, for what cannot be used now
    };

    /// `ground` is the colour below, which only the faded style asks for.
    void paint(QPainter& painter, const QRectF& where, Style style, QRgb ground = 0) const;

private:
    QSvgRenderer& renderer(Style style, QRgb ground) const;

    static constexpr std::size_t kStyles = 3;

    QString name_;
    mutable std::array<std::unique_ptr<QSvgRenderer>, kStyles> renderers_;
    mutable QRgb fadedGround_ = 0;
};

} // namespace look
