#include "markup/any_page.h"
#include "markup/directive_table.h"
#include "markup/gallery.h"
#include "page/surface.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using test_support::PageBench;

/// Keywords that a source of the gallery begins a line with.
bool uses(const QString& source, QStringView keyword) {
    return (u'\n' + source).contains(QStringLiteral("\n##") + keyword.toString());
}

TEST(Gallery, isInTheManualWithItsPictures) {
    QFile file(QStringLiteral(GALLERY "/../langage.md"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll());
    for (const auto& [name, source] : test_support::gallery()) {
        EXPECT_TRUE(manual.contains(QStringLiteral("```\n") + source + QStringLiteral("```\n")))
            << name.toStdString();
        const QString picture =
            QStringLiteral("gallery/") + name.section(u'.', 0, 0) + QStringLiteral(".png");
        EXPECT_TRUE(manual.contains(picture)) << name.toStdString();
        EXPECT_TRUE(QFile::exists(QStringLiteral(GALLERY "/../") + picture)) << name.toStdString();
    }
}

TEST(Gallery, showsEveryDirectiveAndDrawsWithoutAFault) {
    const auto sources = test_support::gallery();
    ASSERT_GE(sources.size(), 30u);
    for (const auto& [name, source] : sources) {
        PageBench bench;
        bench.pictures.anyName = true;
        if (name.endsWith(u".question"))
            bench.as = markup::DrawnAs::Question;
        const QStringList drawn = bench.draw(source);
        EXPECT_FALSE(drawn.isEmpty()) << name.toStdString();
        EXPECT_TRUE(drawn.filter(QStringLiteral("failed")).isEmpty())
            << name.toStdString() << ": " << drawn.join(u'\n').toStdString();
    }
    for (const markup::Directive& directive : markup::directiveTable()) {
        const bool shown = std::any_of(sources.begin(), sources.end(), [&](const auto& entry) {
            return uses(entry.second, directive.keyword);
        });
        EXPECT_TRUE(shown) << "no source shows " << directive.keyword.toString().toStdString();
    }
}

/// Sources of the gallery with lines moved, cut, repeated and changed, and directives with
/// arguments of all kinds.
class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {
        for (const auto& entry : test_support::gallery())
            lines_ += entry.second.split(u'\n');
    }

    QString source() {
        QString text;
        const int count = number(1, 40);
        for (int i = 0; i < count; ++i)
            text += line() + (number(0, 30) == 0 ? QStringLiteral("\n") : QStringLiteral("\r\n"));
        return text;
    }

private:
    int number(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }

    QString anyCharacters() {
        static const QString kAlphabet =
            QStringLiteral("0123456789-+.,eEdD #¶W\\/:.\t\u0000éλ𝜆\uFFFF") + QChar(0xD800);
        QString text;
        for (int count = number(0, 12); count > 0; --count)
            text += kAlphabet[number(0, static_cast<int>(kAlphabet.size()) - 1)];
        return text;
    }

    QString line() {
        const auto table = markup::directiveTable();
        const int kind = number(0, 9);
        if (kind < 4)
            return QStringLiteral("##") +
                   table[static_cast<std::size_t>(number(0, static_cast<int>(table.size()) - 1))]
                       .keyword.toString() +
                   anyCharacters();
        QString text = lines_[number(0, static_cast<int>(lines_.size()) - 1)];
        if (kind < 7 && !text.isEmpty())
            text.replace(number(0, static_cast<int>(text.size()) - 1), number(0, 3),
                         anyCharacters());
        return text;
    }

    std::mt19937 random_;
    QStringList lines_;
};

TEST(AnySource, isDrawnWithinBounds) {
    // A directive gives a handful of operations; a gradient or a row of many cells some hundreds.
    constexpr std::size_t kMostPerLine = 1000;
    Mutator mutator(20260921);
    PageBench bench;
    for (int round = 0; round < 4000; ++round) {
        const QString source = mutator.source();
        const auto lines = static_cast<std::size_t>(source.count(u'\n'));
        ASSERT_LE(test_support::drawAnyWay(source, bench), 3 * kMostPerLine * lines)
            << source.toStdString();
        for (const double height : bench.page.heightsPx)
            ASSERT_LE(height, page::kMaxSurfaceHeightPx) << source.toStdString();
        ASSERT_EQ(bench.page.lines.size(), bench.page.recording.size()) << source.toStdString();
    }
}

} // namespace
