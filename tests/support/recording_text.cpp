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
    QString operator()(const platform::PictureOperation& picture) const {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(picture.symbol ? QStringLiteral("symbol") : QStringLiteral("picture"),
                 point(picture.x, picture.y), point(picture.width, picture.height), picture.name);
    }
    QString operator()(const platform::LinkOperation& link) const {
        QString line = QStringLiteral("link %1(%2) %3 %4 \"%5\" %6")
                           .arg(platform::linkControlName(link.control))
                           .arg(link.index)
                           .arg(point(link.x, link.y), point(link.width, link.height),
                                link.caption + link.key, link.tag);
        if (!link.tooltip.isEmpty())
            line += QStringLiteral(" tip \"%1\"").arg(link.tooltip);
        return line + colour(link.ink);
    }
    QString operator()(const platform::MenuOperation& menu) const {
        return QStringLiteral("menu %1 %2 \"%3\" %4")
            .arg(menu.menu)
            .arg(menu.entry)
            .arg(menu.caption, menu.target);
    }
    QString operator()(const platform::FieldOperation& field) const {
        QString line = QStringLiteral("field %1(%2) %3 %4")
                           .arg(platform::fieldControlName(field.control))
                           .arg(field.index)
                           .arg(point(field.x, field.y))
                           .arg(field.width);
        if (!field.caption.isEmpty())
            line += QStringLiteral(" \"%1\"").arg(field.caption);
        if (!field.tooltip.isEmpty())
            line += QStringLiteral(" tip \"%1\"").arg(field.tooltip);
        return field.tag.isEmpty() ? line : line + u' ' + field.tag;
    }
    QString operator()(const platform::VideoOperation& video) const {
        return QStringLiteral("video ") + video.name;
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
