#include "support/recording_text.h"

namespace test_support {

namespace {

QString point(double x, double y) {
    return QStringLiteral("%1,%2").arg(x).arg(y);
}

QString colour(QRgb ink) {
    return ink == 0xff000000 ? QString()
                             : QStringLiteral(" #%1").arg(ink & 0xffffff, 6, 16, QLatin1Char('0'));
}

struct Describe {
    QString operator()(const platform::TextOperation& text) const {
        QString line = QStringLiteral("print %1 \"%2\" %3 %4")
                           .arg(point(text.x, text.y), text.text, text.font.face)
                           .arg(text.font.points);
        if (text.font.bold)
            line += QStringLiteral(" bold");
        if (text.font.italic)
            line += QStringLiteral(" italic");
        if (text.font.underline)
            line += QStringLiteral(" underline");
        return line + colour(text.ink);
    }
    QString operator()(const platform::LineOperation& line) const {
        return QStringLiteral("line %1 %2").arg(point(line.x1, line.y1), point(line.x2, line.y2)) +
               colour(line.ink);
    }
    QString operator()(const platform::FillOperation& fill) const {
        return QStringLiteral("fill %1 %2%3")
                   .arg(point(fill.x, fill.y), point(fill.width, fill.height),
                        fill.mode == platform::FillMode::Mask ? QStringLiteral(" mask")
                                                              : QString()) +
               colour(fill.ink);
    }
    QString operator()(const platform::SwitchOperation& change) const {
        return QStringLiteral("surface ") + platform::surfaceName(change.surface);
    }
    QString operator()(const platform::ClearOperation& clear) const {
        return QStringLiteral("clear ") + platform::surfaceName(clear.surface);
    }
    QString operator()(const platform::CaptionOperation& caption) const {
        return QStringLiteral("caption ") + caption.text;
    }
    QString operator()(const platform::FailedOperation& failed) const {
        return QStringLiteral("failed %1 %2").arg(failed.line).arg(failed.directive);
    }
};

} // namespace

QStringList describe(const platform::Recording& recording) {
    QStringList lines;
    for (const platform::Operation& operation : recording.operations())
        lines.append(std::visit(Describe{}, operation));
    return lines;
}

} // namespace test_support
