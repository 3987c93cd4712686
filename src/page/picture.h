#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace page {

enum class PictureFormat { Bmp, Gif, Jpeg, Png, Svg };

/// A picture of a course: its size, the bytes of its file, and its pixels when a device asks for
/// them.
class Picture {
public:
    virtual ~Picture() = default;

    /// Its own size in logical pixels (96 to the inch, 15 twips each); at least 1 x 1.
    virtual QSize size() const = 0;

    /// The picture, `pixels` large, which is what a device needs of it: Format_RGB32, or
    /// Format_ARGB32_Premultiplied where parts are transparent. Null when it cannot be decoded or
    /// would be larger than what a picture may take.
    virtual QImage image(QSize pixels) const = 0;

    virtual PictureFormat format() const = 0;

    /// The file as it stands, for writers that carry it over whole.
    virtual const QByteArray& bytes() const = 0;

    /// What it shows, in words, for who does not see it; empty when nobody has said it.
    virtual QString description() const { return {}; }
};

} // namespace page
