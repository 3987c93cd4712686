#include "support/recording_text.h"

#include "markup/control_names.h"

namespace test_support {

namespace {

QString point(double x, double y) {
    return QStringLiteral("%1,%2").arg(x).arg(y);
}

QString colour(QRgb ink) {
    return ink == 0xff000000 ? QString()
                             : QStringLiteral(" #%1").arg(ink & 0xffffff, 6, 16, QChar(u'0'));
}

QString type(const page::Font& font) {
    QString words = QStringLiteral(" %1 %2").arg(font.face).arg(font.points);
    if (font.bold)
        words += QStringLiteral(" bold");
    if (font.italic)
        words += QStringLiteral(" italic");
    if (font.underline)
        words += QStringLiteral(" underline");
    return words;
}

/// Captions are nearly always in the type that a page starts with.
QString captionType(const page::Font& font) {
    return font == page::Font() ? QString() : type(font);
}

struct Describe {
    QString operator()(const page::TextOperation& text) const {
        return QStringLiteral("print %1 \"%2\"").arg(point(text.x, text.y), text.text) +
               type(text.font) + colour(text.ink);
    }
    QString operator()(const page::LineOperation& line) const {
        return QStringLiteral("line %1 %2").arg(point(line.x1, line.y1), point(line.x2, line.y2)) +
               colour(line.ink);
    }
    QString operator()(const page::FillOperation& fill) const {
        return QStringLiteral("fill %1 %2%3")
                   .arg(point(fill.x, fill.y), point(fill.width, fill.height),
                        fill.mode == page::FillMode::Mask ? QStringLiteral(" mask") : QString()) +
               colour(fill.ink);
    }
    QString operator()(const page::PictureOperation& picture) const {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(picture.symbol ? QStringLiteral("symbol") : QStringLiteral("picture"),
                 point(picture.x, picture.y), point(picture.width, picture.height), picture.name);
    }
    QString operator()(const page::LinkOperation& link) const {
        QString line = QStringLiteral("link %1(%2) %3 %4 \"%5\" %6")
                           .arg(markup::controlName(link.control))
                           .arg(link.index)
                           .arg(point(link.x, link.y), point(link.width, link.height),
                                link.caption + link.key, link.tag);
        if (!link.tooltip.isEmpty())
            line += QStringLiteral(" tip \"%1\"").arg(link.tooltip);
        return line + captionType(link.font) + colour(link.ink);
    }
    QString operator()(const page::MenuOperation& menu) const {
        return QStringLiteral("menu %1 %2 \"%3\" %4")
            .arg(menu.menu)
            .arg(menu.entry)
            .arg(menu.caption, menu.target);
    }
    QString operator()(const page::FieldOperation& field) const {
        QString line = QStringLiteral("field %1(%2) %3 %4")
                           .arg(markup::controlName(field.control))
                           .arg(field.index)
                           .arg(point(field.x, field.y))
                           .arg(field.width);
        if (!field.caption.isEmpty())
            line += QStringLiteral(" \"%1\"").arg(field.caption);
        if (!field.tooltip.isEmpty())
            line += QStringLiteral(" tip \"%1\"").arg(field.tooltip);
        if (!field.tag.isEmpty())
            line += u' ' + field.tag;
        return line + captionType(field.font) + colour(field.ink);
    }
    QString operator()(const page::VideoOperation& video) const {
        return QStringLiteral("video ") + video.name;
    }
    QString operator()(const page::SwitchOperation& change) const {
        return QStringLiteral("surface ") + markup::surfaceName(change.surface);
    }
    QString operator()(const page::ClearOperation& clear) const {
        return QStringLiteral("clear ") + markup::surfaceName(clear.surface);
    }
    QString operator()(const page::CaptionOperation& caption) const {
        return QStringLiteral("caption ") + caption.text;
    }
    QString operator()(const page::FailedOperation& failed) const {
        return QStringLiteral("failed %1 %2").arg(failed.line).arg(failed.directive);
    }
};

} // namespace

QStringList describe(const page::Recording& recording) {
    QStringList lines;
    for (const page::Operation& operation : recording.operations())
        lines.append(std::visit(Describe{}, operation));
    return lines;
}

} // namespace test_support
