#include "authoring/ruler.h"

namespace authoring {

page::Font fontOf(const Style& style) {
    return {style.face == kTimes ? QStringLiteral("Times new roman") : QStringLiteral("Arial"),
            static_cast<double>(style.points), style.bold, style.italic, false};
}

double Ruler::width(const Style& style, char32_t character) const {
    const quint64 key = quint64(character) << 16 | quint64(style.points & 0xFF) << 8 |
                        quint64(style.face & 0xF) << 4 | quint64(style.bold) << 1 |
                        quint64(style.italic);
    const auto known = widths_.constFind(key);
    if (known != widths_.constEnd())
        return *known;
    const double width = metrics_.width(fontOf(style), QString::fromUcs4(&character, 1));
    widths_.insert(key, width);
    return width;
}

double Ruler::width(const Style& style, const QString& text) const {
    double width = 0;
    for (const uint character : text.toUcs4())
        width += this->width(style, static_cast<char32_t>(character));
    return width;
}

double Ruler::height(const Style& style) const {
    return metrics_.height(fontOf(style));
}

} // namespace authoring
