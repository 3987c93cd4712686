#include "publish/inlined_picture.h"

#include "page/face_names.h"
#include "page/pictures/svg_guard.h"

#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>
#include <vector>

namespace publish {

namespace {

const QSet<QString>& drawingElements() {
    static const QSet<QString> kNames{
        QStringLiteral("svg"),
        QStringLiteral("g"),
        QStringLiteral("path"),
        QStringLiteral("rect"),
        QStringLiteral("circle"),
        QStringLiteral("ellipse"),
        QStringLiteral("line"),
        QStringLiteral("polyline"),
        QStringLiteral("polygon"),
        QStringLiteral("text"),
        QStringLiteral("tspan"),
        QStringLiteral("defs"),
        QStringLiteral("use"),
        QStringLiteral("linearGradient"),
        QStringLiteral("radialGradient"),
        QStringLiteral("stop"),
    };
    return kNames;
}

/// What tells who reads it something, and nothing to who looks at it.
bool isSilent(QStringView element) {
    return element == u"title" || element == u"desc" || element == u"metadata";
}

const QSet<QString>& drawingAttributes() {
    static const QSet<QString> kNames = [] {
        QSet<QString> names;
        for (const char* name : {"x",
                                 "y",
                                 "x1",
                                 "y1",
                                 "x2",
                                 "y2",
                                 "cx",
                                 "cy",
                                 "r",
                                 "rx",
                                 "ry",
                                 "fx",
                                 "fy",
                                 "d",
                                 "points",
                                 "width",
                                 "height",
                                 "viewBox",
                                 "transform",
                                 "fill",
                                 "fill-opacity",
                                 "fill-rule",
                                 "stroke",
                                 "stroke-width",
                                 "stroke-opacity",
                                 "stroke-linecap",
                                 "stroke-linejoin",
                                 "stroke-miterlimit",
                                 "stroke-dasharray",
                                 "stroke-dashoffset",
                                 "opacity",
                                 "font-size",
                                 "font-weight",
                                 "font-style",
                                 "text-anchor",
                                 "offset",
                                 "stop-color",
                                 "stop-opacity",
                                 "gradientUnits",
                                 "gradientTransform",
                                 "spreadMethod",
                                 "visibility",
                                 "display",
                                 "color"})
            names.insert(QString::fromLatin1(name));
        return names;
    }();
    return kNames;
}

/// The face of pages that a family of a drawing is meant to be.
QString faceOf(const QString& families) {
    const QString first = families.section(u',', 0, 0).remove(u'"').remove(u'\'').trimmed();
    const auto has = [&](const char16_t* part) {
        return first.contains(QStringView(part), Qt::CaseInsensitive);
    };
    if (has(u"Comic"))
        return page::kComicFace;
    if (has(u"Times") || (has(u"Serif") && !has(u"Sans")))
        return page::kBookFace;
    return page::kTextFace;
}

struct Style {
    QString face = page::kTextFace;
    bool bold = false;
    bool italic = false;
};

class Inliner {
public:
    Inliner(const QByteArray& svg, const QString& id,
            const std::function<QString(const QString&)>& families, const DrawnText& drawn)
        : reader_(svg), writer_(&written_), id_(id), families_(families), drawn_(drawn) {
        reader_.setNamespaceProcessing(false);
    }

    QByteArray run(const QSizeF& size) {
        while (!reader_.atEnd() && !needsMore_)
            switch (reader_.readNext()) {
            case QXmlStreamReader::StartElement:
                begin(size);
                break;
            case QXmlStreamReader::EndElement:
                styles_.pop_back();
                writer_.writeEndElement();
                break;
            case QXmlStreamReader::Characters:
                if (!styles_.empty() && !reader_.isWhitespace())
                    drawn_(styles_.back().face, styles_.back().bold, styles_.back().italic,
                           reader_.text().toString());
                writer_.writeCharacters(reader_.text().toString());
                break;
            default:
                break;
            }
        return needsMore_ || reader_.hasError() ? QByteArray() : written_;
    }

private:
    void begin(const QSizeF& size) {
        const QString element = reader_.qualifiedName().toString();
        if (isSilent(element)) {
            reader_.skipCurrentElement();
            return;
        }
        if (!drawingElements().contains(element)) {
            needsMore_ = true;
            return;
        }
        const bool isRoot = styles_.empty();
        styles_.push_back(isRoot ? Style() : styles_.back());
        writer_.writeStartElement(element);
        if (isRoot)
            beginRoot(size);
        for (const QXmlStreamAttribute& attribute : reader_.attributes())
            take(attribute.qualifiedName().toString(), attribute.value().toString(), isRoot);
    }

    void beginRoot(const QSizeF& size) {
        writer_.writeAttribute(QStringLiteral("id"), id_);
        writer_.writeAttribute(QStringLiteral("width"), QStringLiteral("1"));
        writer_.writeAttribute(QStringLiteral("height"), QStringLiteral("1"));
        writer_.writeAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
        if (!reader_.attributes().hasAttribute(QStringLiteral("viewBox")))
            writer_.writeAttribute(
                QStringLiteral("viewBox"),
                QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));
    }

    void take(const QString& name, const QString& value, bool isRoot) {
        if (isRoot && (name == u"width" || name == u"height" || name == u"x" || name == u"y"))
            return;
        if (name == u"id" && !isRoot)
            return writer_.writeAttribute(name, id_ + u'-' + value);
        if (name == u"style" || name == u"class" || name == u"clip-path" || name == u"mask" ||
            name == u"filter" || name.startsWith(u"marker")) {
            needsMore_ = true;
            return;
        }
        if (name == u"href" || name == u"xlink:href") {
            if (value.startsWith(u'#'))
                writer_.writeAttribute(QStringLiteral("href"), here(value));
            return;
        }
        noteStyle(name, value);
        if (name == u"font-family")
            return writer_.writeAttribute(name, families_(styles_.back().face));
        if (!drawingAttributes().contains(name))
            return;
        if (!value.contains(u"url("))
            writer_.writeAttribute(name, value);
        else if (value.startsWith(u"url(#") && value.endsWith(u')'))
            writer_.writeAttribute(name, QStringLiteral("url(") + here(value.sliced(4).chopped(1)) +
                                             u')');
    }

    /// "#a" as it is called in the page.
    QString here(const QString& reference) const { return u'#' + id_ + u'-' + reference.sliced(1); }

    void noteStyle(const QString& name, const QString& value) {
        Style& style = styles_.back();
        if (name == u"font-family")
            style.face = faceOf(value);
        else if (name == u"font-weight")
            style.bold = value == u"bold" || value.toInt() >= 600;
        else if (name == u"font-style")
            style.italic = value == u"italic" || value == u"oblique";
    }

    QByteArray written_;
    QXmlStreamReader reader_;
    QXmlStreamWriter writer_;
    const QString& id_;
    const std::function<QString(const QString&)>& families_;
    const DrawnText& drawn_;
    std::vector<Style> styles_; ///< of the elements that are open
    bool needsMore_ = false;
};

} // namespace

QByteArray inlinedPicture(const page::Picture& picture, const QString& id,
                          const std::function<QString(const QString& face)>& families,
                          const DrawnText& drawn) {
    if (picture.format() != page::PictureFormat::Svg)
        return {};
    const std::optional<page::GuardedSvg> guarded = page::guardSvg(picture.bytes());
    if (!guarded)
        return {};
    const QSizeF size = guarded->size.isEmpty() ? QSizeF(picture.size()) : guarded->size;
    return Inliner(guarded->source, id, families, drawn).run(size);
}

} // namespace publish
