#include "output/svg/svg_file.h"
#include "platform/sheets.h"

#include <QBuffer>
#include <QProcess>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

namespace {

using page::FillMode;
using testing::ElementsAre;
using testing::IsEmpty;

struct Element {
    QString name;
    QXmlStreamAttributes attributes;
    QString text;
};

std::vector<Element> parsed(const QByteArray& document) {
    std::vector<Element> elements;
    QXmlStreamReader reader(document);
    bool inside = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            elements.push_back({reader.name().toString(), reader.attributes(), {}});
        else if (reader.isCharacters() && inside)
            elements.back().text += reader.text();
        inside = reader.isStartElement() || (inside && reader.isCharacters());
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString() << document.toStdString();
    return elements;
}

/// What `get` says of each element with a name.
template <class Get>
QStringList of(const QByteArray& document, const QString& name, Get get) {
    QStringList values;
    for (const Element& element : parsed(document))
        if (element.name == name)
            values.append(get(element));
    return values;
}

QStringList texts(const QByteArray& document, const char* name = "text") {
    return of(document, QString::fromLatin1(name),
              [](const Element& element) { return element.text; });
}

QStringList values(const QByteArray& document, const char* name, const char* attribute) {
    return of(document, QString::fromLatin1(name), [&](const Element& element) {
        return element.attributes.value(QString::fromLatin1(attribute)).toString();
    });
}

/// The document as another program draws it.
QImage drawnElsewhere(const QByteArray& document) {
    QProcess program;
    program.start(QStringLiteral("rsvg-convert"), {QStringLiteral("--format=png")});
    program.write(document);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(30'000)) << "rsvg-convert (librsvg2-bin)";
    return QImage::fromData(program.readAllStandardOutput());
}

/// The picture in squares of 8 pixels: text has its own edges in every program, but the same ink at
/// the same place.
QImage coarse(const QImage& image) {
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(image.width() / 8, image.height() / 8, Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation);
}

/// A picture file in four colours, as large as it is painted.
class PngPicture : public page::Picture {
public:
    PngPicture() : image_(64, 32, QImage::Format_RGB32) {
        QPainter painter(&image_);
        painter.fillRect(0, 0, 32, 16, Qt::red);
        painter.fillRect(32, 0, 32, 16, QColor(200, 100, 50));
        painter.fillRect(0, 16, 32, 16, Qt::blue);
        painter.fillRect(32, 16, 32, 16, Qt::black);
        painter.end();
        QBuffer buffer(&bytes_);
        image_.save(&buffer, "PNG");
    }
    QSize size() const override { return image_.size(); }
    QImage image(QSize pixels) const override { return image_.scaled(pixels); }
    page::PictureFormat format() const override { return page::PictureFormat::Png; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QImage image_;
    QByteArray bytes_;
};

struct Svg : testing::Test, SheetCase {
    /// Twips of the surface as a pixel of the sheet.
    static QPoint inSheet(QPoint twips) { return (twips + QPoint(150, 150)) / 15; }

    QByteArray document(const output::LinkAddress& address = {}, double scale = 1) const {
        return output::svgDocument(sheet(), fonts, {.address = address, .scale = scale});
    }
};

TEST_F(Svg, looksLikeTheRaster) {
    surface.setFontPoints(12);
    printAt(0, 0, QStringLiteral("La réfraction : 2 < 3"));
    surface.setBold(true);
    surface.setUnderline(true);
    surface.setInk(0xffb46400);
    printAt(300, 400, QStringLiteral("indice"));
    surface.fill(300, 350, 1200, 400, 0xffdce6ff, FillMode::Mask);
    surface.fill(2100, 350, 750, 450, 0xff00ff00, FillMode::Copy);
    surface.line(0, 900, 4500, 900);
    surface.line(4200, 1050, 4200, 1650);
    surface.setLineWidth(4);
    surface.line(0, 1000, 1500, 1900);
    surface.setPenX(2000);
    surface.setPenY(1200);
    surface.paint(std::make_shared<PngPicture>(), 960, 480, {}, false);
    surface.fill(4200, 2700, 3000, 3000, 0xff00ffff, FillMode::Copy); // beyond the surface

    const QImage ours = raster(sheet());
    const QImage theirs = drawnElsewhere(document());
    EXPECT_LE(difference(coarse(ours), coarse(theirs)), 24);
    EXPECT_EQ(theirs.pixel(18, 38), qRgb(255, 255, 255));
    // Thin lines are lost among so many pixels.
    for (const QPoint on : {QPoint(4485, 900), QPoint(4200, 1050), QPoint(4200, 1650)})
        EXPECT_EQ(theirs.pixel(inSheet(on)), ours.pixel(inSheet(on))) << on.x();
    EXPECT_EQ(theirs.pixel(inSheet({4200, 1350})), qRgb(0xb4, 0x64, 0));
    // The paper under the mask has its ink, and so has the picture's corner.
    EXPECT_EQ(QColor(theirs.pixel(108, 36)), QColor(0xdc, 0xe6, 0xff));
    EXPECT_EQ(drawnElsewhere(document({}, 2)).size(), QSize(640, 440));
}

TEST_F(Svg, picturesUnderMaskFillsHaveTheColoursOfTheScreen) {
    surface.setPenX(300);
    surface.setPenY(300);
    surface.paint(std::make_shared<PngPicture>(), 960, 480, {}, false);
    surface.fill(300, 300, 960, 480, 0xff80c080, FillMode::Mask);
    surface.fill(0, 600, 780, 180, 0xffff90ff, FillMode::Mask);
    const QImage theirs = drawnElsewhere(document());
    const QImage ours = raster(sheet());
    for (const QPoint at : {QPoint(405, 405), {405, 705}, {1005, 405}, {1005, 705}, {105, 705}})
        EXPECT_LE(difference(theirs.copy(QRect(inSheet(at), QSize(1, 1))),
                             ours.copy(QRect(inSheet(at), QSize(1, 1)))),
                  2)
            << at.x() << ' ' << at.y();
}

TEST_F(Svg, hasTextAsUnicodeAsWideAsItWasMeasured) {
    printAt(0, 0, QStringLiteral(" a  <&>\"é "));
    surface.setFace(QStringLiteral("Symbol"));
    printAt(0, 300, QStringLiteral("lD"));
    surface.setFace(QStringLiteral("Wingdings"));
    printAt(0, 600, QStringLiteral("\u00FC"));
    surface.setFace(QStringLiteral("Times new roman"));
    printAt(0, 900, QStringLiteral("x"));
    const QByteArray svg = document();
    EXPECT_THAT(texts(svg), ElementsAre(QStringLiteral(" a  <&>\"é "), QStringLiteral("λΔ"),
                                        QStringLiteral("✔"), QStringLiteral("x")));
    EXPECT_THAT(texts(svg, "title"), ElementsAre(QStringLiteral("Un <titre> & \"λ\"")));
    for (const QString& value : values(svg, "text", "textLength"))
        EXPECT_GT(value.toDouble(), 0);
    EXPECT_NEAR(values(svg, "text", "textLength")[0].toDouble() * 15,
                std::get<page::TextOperation>(recording.operations()[0]).width, 0.01);
    EXPECT_TRUE(values(svg, "text", "font-family")[3].startsWith(u"Liberation Serif"));
}

TEST_F(Svg, staysReadableWhateverThePageHolds) {
    const QChar lone(0xD800);
    printAt(0, 0, QStringLiteral("a\u0001b\tc\uFFFEd") + lone + QStringLiteral("e"));
    printAt(0, 0, QString::fromUcs4(U"🡺"));
    surface.setFontPoints(0);
    printAt(0, 0, QStringLiteral("nothing"));
    surface.fill(-3e38, 0, 1e30, 1e30, 0xff000000, FillMode::Copy);
    surface.fill(0, 0, 1e30, 1e30, 0xff000000, FillMode::Copy);
    surface.line(0, 3e38, 5, 5);
    const QByteArray svg = document();
    EXPECT_THAT(texts(svg),
                ElementsAre(QStringLiteral("ab c\uFFFDd\uFFFDe"), QString::fromUcs4(U"🡺")));
    EXPECT_FALSE(svg.contains("nan") || svg.contains("inf") || svg.contains("e+"));
}

TEST_F(Svg, storesEachPictureOnce) {
    const auto paint = [&](std::shared_ptr<const page::Picture> picture) {
        surface.paint(std::move(picture), 300, 300, {}, false);
    };
    const auto picture = std::make_shared<PngPicture>();
    paint(picture);
    paint(picture);
    paint(std::make_shared<PngPicture>()); // the same file, read again
    paint(std::make_shared<test_support::PlainPicture>(QSize(3, 3)));
    const QByteArray svg = document();
    const QStringList stored = values(svg, "image", "xlink:href");
    ASSERT_EQ(stored.size(), 2);
    EXPECT_EQ(QByteArray::fromBase64(stored[0].section(u',', 1).toLatin1()), picture->bytes());
    EXPECT_TRUE(stored[1].startsWith(QStringLiteral("data:image/png;base64,"))); // was a bitmap
    EXPECT_THAT(values(svg, "use", "xlink:href"),
                ElementsAre(QStringLiteral("#i1"), QStringLiteral("#i1"), QStringLiteral("#i1"),
                            QStringLiteral("#i2")));
    EXPECT_EQ(svg, document());
}

TEST_F(Svg, linksLeadWhereTheAddressSays) {
    page::LinkOperation link;
    link.caption = QStringLiteral("la loi\r\nde Descartes");
    link.tag = QStringLiteral("PAG013");
    link.tooltip = QStringLiteral("vers la \"loi\"");
    link.x = 150;
    link.width = 900;
    link.height = 450;
    recording.add(link);
    link.index = 1;
    link.tag = QStringLiteral("PAG014");
    recording.add(link);
    const auto address = [](const page::LinkArea& area) {
        return area.tag == u"PAG013" ? QStringLiteral("page-013.svg") : QString();
    };
    const QByteArray svg = document(address);
    EXPECT_THAT(values(svg, "a", "xlink:href"), ElementsAre(QStringLiteral("page-013.svg")));
    EXPECT_THAT(values(svg, "a", "aria-label"), ElementsAre(QStringLiteral("la loi de Descartes")));
    EXPECT_EQ(texts(svg, "title").last(), QStringLiteral("vers la \"loi\""));
    EXPECT_THAT(texts(svg), ElementsAre(QStringLiteral("la loi"), QStringLiteral("de Descartes"),
                                        QStringLiteral("la loi"), QStringLiteral("de Descartes")));
    EXPECT_THAT(values(document(), "a", "xlink:href"), IsEmpty());
}

} // namespace
