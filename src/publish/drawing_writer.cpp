#include "publish/drawing_writer.h"

#include "output/svg/svg_file.h"
#include "publish/inlined_picture.h"

#include <QCryptographicHash>

namespace publish {

QString DrawingWriter::write(const page::Sheet& sheet, const QString& idPrefix,
                             const std::function<QString(const page::LinkArea&)>& address) {
    for (const page::DrawnOperation& operation : sheet.operations)
        if (const auto* text = std::get_if<page::TextOperation>(&operation))
            faces_.note(text->font, text->text);
    output::SvgForm form;
    form.address = address;
    form.isInPage = true;
    form.idPrefix = idPrefix;
    form.families = WebFaces::families;
    form.inlined = [&](const page::Picture& picture, const QString& id) {
        return inlined(picture, id);
    };
    return QString::fromUtf8(output::svgDocument(sheet, fonts_, form));
}

QByteArray DrawingWriter::inlined(const page::Picture& picture, const QString& id) {
    if (picture.format() != page::PictureFormat::Svg)
        return {};
    auto known = inlined_.constFind(picture.bytes());
    if (known == inlined_.constEnd()) {
        // Nothing can hold its own hash: wherever these letters stand, they are the identifier.
        const QByteArray mark =
            'i' +
            QCryptographicHash::hash(picture.bytes(), QCryptographicHash::Blake2b_160).toHex();
        const DrawnText drawn = [&](const QString& face, bool bold, bool italic,
                                    const QString& text) {
            faces_.note({.face = face, .bold = bold, .italic = italic}, text);
        };
        known = inlined_.insert(
            picture.bytes(),
            {mark, inlinedPicture(picture, QString::fromLatin1(mark), WebFaces::families, drawn)});
    }
    return QByteArray(known->drawing).replace(known->id, id.toUtf8());
}

} // namespace publish
