#include "publish/drawing_writer.h"

#include "output/svg/svg_file.h"
#include "publish/inlined_picture.h"

namespace publish {

QString DrawingWriter::write(const page::Sheet& sheet, const QString& idPrefix,
                             const std::function<QString(const page::LinkArea&)>& address) {
    for (const page::DrawnOperation& operation : sheet.operations)
        if (const auto* text = std::get_if<page::TextOperation>(&operation))
            faces_.note(text->font, text->text);
    const DrawnText drawn = [&](const QString& face, bool bold, bool italic, const QString& text) {
        faces_.note({.face = face, .bold = bold, .italic = italic}, text);
    };
    output::SvgForm form;
    form.address = address;
    form.isInPage = true;
    form.idPrefix = idPrefix;
    form.families = WebFaces::families;
    form.inlined = [&](const page::Picture& picture, const QString& id) {
        return inlinedPicture(picture, id, WebFaces::families, drawn);
    };
    return QString::fromUtf8(output::svgDocument(sheet, fonts_, form));
}

} // namespace publish
