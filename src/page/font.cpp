#include "page/font.h"

#include <QtMath>

namespace page {

int fontPixels(double points) {
    return qRound(points * 96 / 72);
}

} // namespace page
