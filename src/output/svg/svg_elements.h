#pragma once

#include "output/svg/svg_form.h"
#include "page/picture.h"

#include <QByteArray>
#include <QHash>
#include <QRectF>
#include <QString>
#include <QXmlStreamWriter>

#include <utility>
#include <vector>

namespace output::svg {

/// Elements with their attributes, each on a line of its own.
class Markup {
public:
    explicit Markup(QByteArray& out) : xml_(&out) {}

    Markup& open(const char* element) {
        xml_.writeStartElement(QString::fromLatin1(element));
        return *this;
    }
    /// An element that holds nothing.
    Markup& empty(const char* element) {
        xml_.writeEmptyElement(QString::fromLatin1(element));
        return *this;
    }
    Markup& with(const char* name, const QString& value) {
        xml_.writeAttribute(QString::fromLatin1(name), value);
        return *this;
    }
    Markup& with(const char* name, const char* value) {
        return with(name, QString::fromLatin1(value));
    }
    Markup& text(const QString& text) {
        xml_.writeCharacters(text);
        return *this;
    }
    Markup& close() {
        xml_.writeEndElement();
        return *this;
    }
    void endLine() { xml_.writeCharacters(QStringLiteral("\n")); }

private:
    QXmlStreamWriter xml_;
};

/// The pictures of a document, each stored once under a name of its own.
class PictureStore {
public:
    /// `form` outlives it.
    explicit PictureStore(const SvgForm& form) : form_(form) {}

    /// The name of a picture; empty for one that cannot be stored.
    QString name(const page::Picture& picture);

    const QByteArray& definitions() const { return definitions_; }

private:
    QString store(const page::Picture& picture);

    const SvgForm& form_;
    QHash<const page::Picture*, QString> names_;
    QHash<QByteArray, QString> byContent_;
    QByteArray definitions_;
    Markup markup_{definitions_};
};

/// The areas that elements are cut at, each defined once.
class ClipStore {
public:
    explicit ClipStore(QString idPrefix) : idPrefix_(std::move(idPrefix)) {}

    /// The value of a "clip-path".
    QString reference(const QRectF& area);

    QByteArray definitions() const;

private:
    QString idPrefix_;
    std::vector<QRectF> areas_;
};

} // namespace output::svg
