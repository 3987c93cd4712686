#include "page/pictures/bounded_canvas.h"
#include "page/pictures/decoded_cache.h"
#include "page/pictures/drawing_thread.h"
#include "page/pictures/picture_file.h"
#include "page/pictures/svg_guard.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>

#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace {

using page::guardSvg;
using page::pictureFrom;

QByteArray svg(const QByteArray& content, const QByteArray& attributes = {}) {
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='90' height='90'" +
           attributes + ">" + content + "</svg>";
}

/// A small file of many pixels.
QByteArray wide(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, "png"));
    return bytes;
}

QByteArray inside(const QByteArray& png) {
    return "<image width='9' height='9' xlink:href='data:image/png;base64," + png.toBase64() +
           "'/>";
}

QByteArray repeated(int count, const std::function<QByteArray(int)>& part) {
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += part(i);
    return all;
}

TEST(SvgBounds, whatWouldTakeLongIsRefused) {
    const QByteArray rules =
        repeated(4000, [](int i) { return ".c" + QByteArray::number(i) + "{x:y}"; });
    const QByteArray classes = " class='" + QByteArray("a ").repeated(1000) + "'";
    const auto attributes = [](int count) {
        return repeated(count, [](int i) { return " a" + QByteArray::number(i) + " = '1'"; });
    };
    const QByteArray shapes = QByteArray("<g/>").repeated(15'000);
    const QByteArray letters = QByteArray("abcdefgh").repeated(9000);
    const QByteArray tenth = wide(5000, 500);
    QByteArray utf16("\xFF\xFE", 2);
    for (const QChar c : QString::fromLatin1(svg({}, attributes(300))))
        utf16 += char(c.unicode()), utf16 += '\0';
    const struct {
        const char* name;
        QByteArray source;
        bool isDrawn;
    } rows[] = {
        {"rules and elements", svg("<style>" + rules + "</style>" + shapes), false},
        {"rules alone", svg("<style>" + rules + "</style>" + shapes.first(400)), true},
        {"elements alone", svg("<style>" + rules.first(400) + "</style>" + shapes), true},
        {"in several sheets",
         svg("<style>" + rules.first(20'000) + "</style>" + shapes + "<style type='text/css'>" +
             rules.first(20'000) + "</style>"),
         false},
        {"selectors without rules",
         svg("<style>" + QByteArray("*,").repeated(4000) + "*{x:y}</style>" + shapes), false},
        {"classes of an element",
         svg("<style>" + rules.first(6000) + "</style>" + ("<g" + classes + "/>").repeated(15)),
         false},
        {"attributes", svg({}, attributes(300)), false},
        {"attributes in UTF-16", utf16, false},
        {"few attributes", svg({}, attributes(200)), true},
        {"many of different elements", svg(("<g" + attributes(20) + "/>").repeated(90)), true},
        {"an equation", svg("<text>" + QByteArray("= \"").repeated(100) + "</text>"), true},
        {"letters", svg("<text>" + letters.repeated(4) + "</text>"), false},
        {"letters used again",
         svg("<text id='t'>" + letters + "</text>" +
             QByteArray("<use xlink:href='#t'/>").repeated(3)),
         false},
        {"letters that are not drawn", svg("<metadata>" + letters.repeated(4) + "</metadata>"),
         true},
        {"words", svg(QByteArray("<text>a</text>").repeated(4000)), false},
        {"a page of words", svg(QByteArray("<text>a</text>").repeated(2500)), true},
        {"pictures inside, together", svg(inside(tenth).repeated(11)), false},
        {"pictures inside", svg(inside(tenth).repeated(10)), true},
        {"an encoding that nobody knows",
         "<?xml version='1.0' encoding='x-odd'?>" + svg("<path d='M0 0h9'/>"), false},
        {"an encoding that is named",
         "<?xml version='1.0' encoding='ISO-8859-1'?>" + svg("<path d='M0 0h9'/><text>\xE9</text>"),
         true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(guardSvg(row.source).has_value(), row.isDrawn) << row.name;
}

TEST(SvgBounds, whatIsTooLongForAnyDrawingIsLeftOut) {
    const auto guarded = guardSvg(svg("<path stroke-dasharray='" + QByteArray("1 ").repeated(4000) +
                                      "' d='M0 0" + QByteArray("h9").repeated(4000) +
                                      "'/><animate attributeName='x'/><set/>"
                                      "<animateTransform><g/></animateTransform>"));
    ASSERT_TRUE(guarded);
    for (const char* gone : {"dasharray", "animate", "<set", "<g"})
        EXPECT_FALSE(guarded->source.contains(gone)) << gone;
    EXPECT_TRUE(guarded->source.contains("h9h9"));
}

/// The pixel in the middle of a line across a picture.
QRgb lineOf(const QByteArray& attributes) {
    return pictureFrom(
               svg("<path stroke='#f00' stroke-width='9' d='M-9e6 45H9e6' " + attributes + "/>"))
        ->image({90, 90})
        .pixel(40, 45);
}

TEST(SvgBounds, dashesWithoutEndAreALine) {
    EXPECT_EQ(lineOf("stroke-dasharray='0.0001'"), 0xffff0000u);
    // Fewer than those, and yet too many.
    EXPECT_EQ(pictureFrom(svg("<path stroke='#f00' stroke-width='9' d='M0 45H90' "
                              "stroke-dasharray='0.002'/>"))
                  ->image({90, 90})
                  .pixel(40, 45),
              0xffff0000u);
    const auto dashes = pictureFrom(svg("<path stroke='#f00' stroke-width='9' d='M0 45H90' "
                                        "stroke-dasharray='10'/>"))
                            ->image({90, 90});
    EXPECT_EQ(dashes.pixel(5, 45), 0xffff0000u);
    EXPECT_EQ(dashes.pixel(15, 45), 0u);
}

/// Lines all over a picture 900 pixels wide. Thousands of them, drawn smooth, take a minute.
QPainterPath tangle(int lines) {
    std::mt19937 random(4711);
    QPainterPath path;
    for (int line = 0; line < lines; ++line) {
        const int x = static_cast<int>(random() % 900);
        path.lineTo(x, static_cast<int>(random() % 900));
    }
    return path;
}

struct Colours {
    int of = 0;      ///< pixels of the pen's very colour
    int between = 0; ///< of smooth edges
};

Colours coloursIn(const QImage& image, QRgb pen) {
    Colours colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            colours.of += pixel == pen ? 1 : 0;
            colours.between += pixel != pen && pixel != 0 ? 1 : 0;
        }
    return colours;
}

/// What a drawing costs is reckoned by what is in it, not measured: a busy machine draws the same.
TEST(BoundedCanvas, dearDrawingsLoseTheirFinenessNotTheProgram) {
    const page::GivenUp never = false;
    const auto draw = [&never](const auto& content) {
        page::BoundedCanvas canvas({900, 900}, never);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::red);
        content(painter);
        painter.end();
        return canvas.image();
    };
    const Colours cheap =
        coloursIn(draw([](QPainter& painter) { painter.drawPath(tangle(9)); }), 0xffff0000u);
    EXPECT_GT(cheap.between, 1000) << "a few lines are smooth";

    const QImage dear = draw([](QPainter& painter) {
        painter.drawPath(tangle(400));
        painter.fillRect(0, 0, 90, 90, Qt::blue); // there is enough left for what follows
    });
    EXPECT_EQ(dear.pixel(45, 45), 0xff0000ffu);
    EXPECT_GT(coloursIn(dear.copy(90, 90, 800, 800), 0xffff0000u).of, 100'000);
    EXPECT_EQ(coloursIn(dear.copy(90, 90, 800, 800), 0xffff0000u).between, 0);

    const QImage spent = draw([](QPainter& painter) {
        for (int i = 0; i < 9; ++i)
            painter.drawPath(tangle(4000));
        painter.fillRect(0, 0, 900, 900, Qt::blue); // what comes last is left out
    });
    EXPECT_EQ(coloursIn(spent, 0xff0000ffu).of, 0);
    EXPECT_GT(coloursIn(spent, 0xffff0000u).of, 100'000);
}

TEST(BoundedCanvas, drawsNothingMoreOnceItIsGivenUp) {
    page::GivenUp givenUp = false;
    page::BoundedCanvas canvas({9, 9}, givenUp);
    QPainter painter(&canvas);
    painter.fillRect(0, 0, 4, 9, Qt::red);
    givenUp = true;
    painter.fillRect(4, 0, 4, 9, Qt::red);
    painter.end();
    EXPECT_EQ(canvas.image().pixel(2, 2), 0xffff0000u);
    EXPECT_EQ(canvas.image().pixel(6, 2), 0u);
}

TEST(DrawingThread, leavesBehindWhatTakesTooLongAndOnlyAFewOfThem) {
    using namespace std::chrono_literals;
    const page::Patience none{0ms, 0ms};
    const auto ended = std::make_shared<std::atomic<int>>(0);
    const auto goOn = std::make_shared<std::atomic<bool>>(false);
    const auto stubborn = [ended, goOn](const page::GivenUp& givenUp) {
        while (!givenUp || !*goOn)
            std::this_thread::sleep_for(1ms);
        ++*ended;
    };
    for (int i = 0; i < page::kMostLeftBehind; ++i)
        EXPECT_FALSE(page::doInTime(stubborn, none));
    int done = 0;
    const auto work = [&done](const page::GivenUp&) { ++done; };
    EXPECT_FALSE(page::doInTime(work)) << "too many are left behind";
    *goOn = true;
    while (*ended < page::kMostLeftBehind)
        std::this_thread::sleep_for(1ms);
    // The last of them may still be on its way out.
    while (!page::doInTime(work))
        std::this_thread::sleep_for(1ms);
    EXPECT_TRUE(page::doInTime(work));
    EXPECT_EQ(done, 2);
}

TEST(DecodedCache, holdsABoundedPartOfManyPictures) {
    const QByteArray photo = wide(1000, 900);
    const QByteArray drawing = svg(inside(wide(990, 1000)));
    std::vector<std::shared_ptr<const page::Picture>> page;
    for (int i = 0; i < 20; ++i) {
        page.push_back(pictureFrom(photo));
        page.push_back(pictureFrom(drawing));
        for (const auto& picture : {page[page.size() - 2], page.back()})
            EXPECT_FALSE(picture->image({900, 800}).isNull());
        EXPECT_LE(page::decoded::bytes(), page::kMostDecodedBytes);
    }
    EXPECT_GT(page::decoded::bytes(), page::kMostDecodedBytes / 2);
    // What was let go of is decoded anew, to the same pixels.
    for (const std::size_t at : {0, 1}) {
        EXPECT_EQ(page[at]->image({900, 800}), page[page.size() - 2 + at]->image({900, 800}));
        EXPECT_EQ(page[at]->image(page[at]->size()),
                  pictureFrom(page[at]->bytes())->image(page[at]->size()));
    }
    page.clear();
    EXPECT_EQ(page::decoded::bytes(), 0);
}

} // namespace
