#include "platform/font.h"

#include <QtMath>

namespace platform {

int fontPixels(double points) {
    return qRound(points * 96 / 72);
}

} // namespace platform
