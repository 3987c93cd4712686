#pragma once

#include <QImage>

#include <cstddef>
#include <vector>

namespace output {

/// The picture of a surface in bands of rows, from its top down. Each band is drawn when it is
/// first shown: of a page three times as tall as the window only a third is drawn before it stands
/// there. Rows and lengths are device pixels. The pictures take at most 64 MB, or one band where
/// that takes more; those farthest from what is shown go first, and are drawn again if need be.
class RasterBands {
public:
    struct Band {
        int top = 0;
        int bottom = 0;        ///< the first row below
        QImage picture;        ///< Format_RGB32; null until it is shown, or where memory is out
        int ground = 0;        ///< so many rows of it have the background
        std::size_t drawn = 0; ///< so many of the surface's operations stand on it
    };

    /// Gives the bands a size, `rows` of them above 0, and forgets all pictures.
    void resize(int width, int rows);

    /// Forgets what was drawn; the pictures are used again.
    void wipe();

    /// Sees to it that the rows from `top` to before `bottom` are in one band, unless that took
    /// more memory than all may take. A band that grows by it is drawn anew.
    void join(int top, int bottom);

    /// The band with a row, from 0; it has a picture, unless memory is out. Valid until the next
    /// call of anything here.
    Band& at(int row);

    /// What all pictures take.
    qsizetype bytes() const;

private:
    std::size_t indexOf(int row);
    qsizetype bytesOf(int rows) const;
    void makeRoom(int rows, std::size_t shown);
    void keepForLater(QImage& picture);

    int width_ = 0;
    int rows_ = 1;
    std::vector<Band> bands_;   ///< without gaps
    std::vector<QImage> spare_; ///< of the usual size
};

} // namespace output
