#include "page/pictures/svg_guard.h"

#include "page/pictures/picture_file.h"
#include "page/pictures/raster_picture.h"
#include "page/pictures/svg_size.h"
#include "page/pictures/svg_source.h"

#include <QHash>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace page {

namespace {

bool isOneOf(const QString& name, std::initializer_list<QLatin1String> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isText(const QString& element) {
    return isOneOf(element, {QLatin1String("text"), QLatin1String("tspan"),
                             QLatin1String("textArea"), QLatin1String("tbreak")});
}

/// What makes no part of a picture that stands still.
bool isLeftOut(const QString& element) {
    return isOneOf(element, {QLatin1String("script"), QLatin1String("set")}) ||
           element.startsWith(QLatin1String("animate"));
}

/// Values that are as long as the drawing needs.
bool mayBeLong(QStringView attribute) {
    return attribute == QLatin1String("d") || attribute == QLatin1String("points") ||
           attribute.endsWith(QLatin1String("href"));
}

/// Words of a style sheet: selectors, properties, values.
qint64 wordsOf(QStringView styles) {
    qint64 words = 0;
    bool isInWord = false;
    for (const QChar c : styles) {
        const bool separates = c.isSpace() || QLatin1String("{},;:>+[].#").contains(c);
        words += !separates && !isInWord;
        isInWord = !separates;
    }
    return words;
}

/// How an SVG's elements hold and use each other.
class UseGraph {
public:
    /// Takes an element as it begins; false when there are too many, too deep. `weight`: as many
    /// elements it counts when it is drawn.
    bool begin(const QString& id, const QString& uses, int weight) {
        const int index = static_cast<int>(nodes_.size());
        if (index >= kMaxSvgElements || open_.size() >= kMaxSvgDepth)
            return false;
        if (!open_.empty())
            nodes_[open_.back()].children.push_back(index);
        if (!id.isEmpty())
            ids_.insert(id, index);
        nodes_.push_back({uses, weight, {}, Node::State::Unknown});
        open_.push_back(static_cast<std::size_t>(index));
        return true;
    }

    void end() { open_.pop_back(); }

    /// Makes the element that is open heavier.
    void add(qint64 weight) {
        if (!open_.empty())
            nodes_[open_.back()].drawn += static_cast<int>(weight);
    }

    qint64 elements() const { return static_cast<qint64>(nodes_.size()); }

    /// Whether the whole comes to an end, within the bounds.
    bool isBounded() { return !nodes_.empty() && add(0, 0); }

private:
    struct Node {
        QString uses;
        int drawn; ///< elements that are drawn with it
        std::vector<int> children;
        enum class State { Unknown, BeingAdded, Added } state;
    };

    /// Chains of elements that use each other, within each other; more would be deep recursion.
    static constexpr int kMaxNesting = 4 * kMaxSvgDepth;

    /// Adds what an element holds and uses to what is drawn with it; false beyond the bounds.
    bool add(int index, int nesting) {
        Node& node = nodes_[static_cast<std::size_t>(index)];
        if (node.state == Node::State::Added)
            return true;
        if (node.state == Node::State::BeingAdded || nesting > kMaxNesting)
            return false;
        if (node.drawn > kMaxSvgUses)
            return false;
        node.state = Node::State::BeingAdded;
        for (const int child : node.children)
            if (!addTo(node, child, nesting))
                return false;
        if (const auto used = ids_.constFind(node.uses); used != ids_.constEnd())
            if (!addTo(node, *used, nesting))
                return false;
        node.state = Node::State::Added;
        return true;
    }

    bool addTo(Node& node, int part, int nesting) {
        if (!add(part, nesting + 1))
            return false;
        node.drawn += nodes_[static_cast<std::size_t>(part)].drawn;
        return node.drawn <= kMaxSvgUses;
    }

    std::vector<Node> nodes_;
    std::vector<std::size_t> open_;
    QHash<QString, int> ids_;
};

class Guard {
public:
    explicit Guard(const QString& source) : reader_(source), writer_(&guarded_.source) {
        // Programs leave behind names of spaces that they do not declare.
        reader_.setNamespaceProcessing(false);
    }

    std::optional<GuardedSvg> run() {
        while (!reader_.atEnd() && !refused_)
            take(reader_.readNext());
        if (refused_ || reader_.hasError() || styleWords_ * elementWeight_ > kMaxSvgStyleWork ||
            !uses_.isBounded())
            return std::nullopt;
        guarded_.elements = uses_.elements();
        return guarded_;
    }

private:
    void take(QXmlStreamReader::TokenType token) {
        if (token == QXmlStreamReader::StartElement) {
            beginElement();
        } else if (token == QXmlStreamReader::EndElement) {
            writer_.writeEndElement();
            uses_.end();
            isInStyle_ = false;
            textDepth_ -= isText(elementName());
        } else if (token == QXmlStreamReader::Characters) {
            const QString text = reader_.text().toString();
            if (textDepth_ > 0)
                uses_.add(text.size() / kSvgLettersToElement);
            if (isInStyle_)
                styleWords_ += wordsOf(text);
            writer_.writeCharacters(text);
        }
    }

    /// The element's name as it is without a name space: "svg:path" is a path.
    QString elementName() const {
        const QString name = reader_.qualifiedName().toString();
        return name.startsWith(QLatin1String("svg:")) ? name.mid(4) : name;
    }

    void beginElement() {
        const QString name = elementName();
        const QXmlStreamAttributes attributes = reader_.attributes();
        if (isFirst_ && name != QLatin1String("svg")) {
            refused_ = true;
            return;
        }
        if (isLeftOut(name)) {
            reader_.skipCurrentElement();
            return;
        }
        isInStyle_ = name == QLatin1String("style");
        textDepth_ += isText(name);
        writer_.writeStartElement(name);
        QString uses;
        for (const QXmlStreamAttribute& attribute : attributes) {
            const QString value = attribute.value().toString();
            if (value.size() > kMaxSvgValue && !mayBeLong(attribute.qualifiedName()))
                continue;
            if (isReference(attribute)) {
                if (!mayRefer(name, value))
                    continue;
                uses = value.trimmed().mid(1);
            }
            writer_.writeAttribute(attribute.qualifiedName().toString(), value);
        }
        if (isFirst_)
            takeSize(attributes);
        isFirst_ = false;
        const QString id = attributes.value(QLatin1String("id")).toString();
        // Selectors are compared with each of an element's classes.
        elementWeight_ += 1 + attributes.value(QLatin1String("class")).count(u' ');
        refused_ = !uses_.begin(id, uses, isText(name) ? kSvgTextElements : 1) || refused_;
    }

    static bool isReference(const QXmlStreamAttribute& attribute) {
        const auto name = attribute.qualifiedName();
        return name == QLatin1String("href") || name.endsWith(QLatin1String(":href"));
    }

    /// Whether what is referred to lies in the file itself.
    bool mayRefer(const QString& element, const QString& value) {
        return value.trimmed().startsWith(u'#') ||
               (element == QLatin1String("image") && isPictureInside(value));
    }

    /// Only pictures that can be read: for any other the drawing library would look for a file.
    bool isPictureInside(const QString& value) {
        const QLatin1String encoded("base64,");
        const qsizetype at = value.lastIndexOf(encoded);
        if (!value.startsWith(QLatin1String("data:")) || at < 0)
            return false;
        const QByteArray bytes = QByteArray::fromBase64(value.mid(at + encoded.size()).toLatin1());
        const auto format = pictureFormat(bytes);
        if (!format || format == PictureFormat::Svg)
            return false;
        const QSize told = RasterPicture::toldSize(bytes, *format);
        guarded_.pixels += qint64(told.width()) * told.height();
        refused_ = refused_ || guarded_.pixels > kMaxPicturePixels;
        return !refused_ && RasterPicture::isReadable(bytes, *format);
    }

    void takeSize(const QXmlStreamAttributes& attributes) {
        guarded_.size = svgSize(attributes);
        if (!guarded_.size.isEmpty() && !attributes.hasAttribute(QLatin1String("viewBox")))
            writer_.writeAttribute(
                QStringLiteral("viewBox"),
                QStringLiteral("0 0 %1 %2").arg(guarded_.size.width()).arg(guarded_.size.height()));
    }

    QXmlStreamReader reader_;
    GuardedSvg guarded_;
    QXmlStreamWriter writer_;
    UseGraph uses_;
    qint64 styleWords_ = 0;
    qint64 elementWeight_ = 0;
    bool isInStyle_ = false;
    int textDepth_ = 0;
    bool isFirst_ = true;
    bool refused_ = false;
};

} // namespace

std::optional<GuardedSvg> guardSvg(const QByteArray& file) {
    if (file.size() > kMaxSvgBytes)
        return std::nullopt;
    const auto source = svgSource(file);
    return source ? Guard(*source).run() : std::nullopt;
}

} // namespace page
