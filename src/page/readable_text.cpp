#include "page/readable_text.h"

#include "page/sign_faces.h"
#include "page/text_lines.h"

#include <QStringList>

namespace page {

namespace {

/// The lines of a label. Nothing is measured: all are taken to be as wide as the label.
std::vector<TextOperation> roughCaption(const LinkOperation& link) {
    const QStringList texts = link.caption.split(QStringLiteral("\r\n"));
    const double height = link.height / static_cast<double>(texts.size());
    std::vector<TextOperation> lines;
    double y = link.y;
    for (const QString& text : texts) {
        lines.push_back({link.surface, link.x, y, text, link.font, link.ink, link.width});
        y += height;
    }
    return lines;
}

QString joined(const TextLine& line) {
    QString text;
    double end = 0;
    for (const TextOperation* run : line.runs) {
        if (!text.isEmpty() && isApart(*run, end) && !text.endsWith(u' '))
            text += u' ';
        text += readableSigns(run->font.face, run->text);
        end = run->x + run->width;
    }
    return text.trimmed();
}

} // namespace

QString readableText(const Recording& recording, SurfaceId surface) {
    const TextLines standing(recording, surface, roughCaption);
    QString text;
    for (const TextLine& line : standing.lines()) {
        const QString words = joined(line);
        if (!words.isEmpty())
            text += words + u'\n';
    }
    return text;
}

} // namespace page
