#include "authoring/layout.h"
#include "authoring/markdown_compiler.h"
#include "authoring/reader.h"

namespace authoring {

namespace {

// The surfaces of a page, in pixels and points, as the house uses them.
constexpr Column kMainColumn{0, 590, 0};
constexpr Column kMarginColumn{6, 144, 0};
constexpr Column kBandColumn{0, 590, 0};
constexpr int kMainPoints = 12;
constexpr int kMarginPoints = 9;
constexpr int kBandPoints = 14;
constexpr int kAboveFirst = 6;

constexpr char kMainSpacing[] = "##INTER1.30";
constexpr char kMarginSpacing[] = "##INTER1.20";

class PageCompiler {
public:
    PageCompiler(std::string_view markdown, int firstLine, const Ruler& ruler)
        : positions_(markdown, firstLine), faults_(positions_),
          writer_(positions_), texts_{ruler, faults_}, document_(readMarkdown(markdown, faults_)) {}

    CompiledPage compile(std::string_view title) {
        for (const Block& block : document_.children)
            share(block);
        if (!title.empty())
            writer_.directive(
                QStringLiteral("##TITBAR") +
                QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())).simplified());
        if (!film_.isEmpty())
            writer_.directive(QStringLiteral("##VIDEO") + film_);
        if (!band_.empty())
            surface("##OBJTIT", nullptr, Place::Band, kBandColumn, {kBandPoints, true}, band_);
        if (!margin_.empty())
            surface("##OBJILLUS", kMarginSpacing, Place::Margin, kMarginColumn, {kMarginPoints},
                    margin_);
        if (!band_.empty() || !margin_.empty())
            writer_.directive(QStringLiteral("##OBJPRINCIPAL"));
        layOut(kMainSpacing, Place::Main, kMainColumn, {kMainPoints}, main_);
        return {writer_.text(), std::move(texts_.descriptions), faults_.sorted()};
    }

private:
    /// Where on the page a block goes.
    void share(const Block& block) {
        const QuoteForm form = block.kind == Block::Kind::Quote ? quoteForm(block) : QuoteForm{};
        if (form.kind != QuoteKind::Frame) {
            std::vector<Block>& target = form.kind == QuoteKind::Margin ? margin_ : band_;
            for (Block& part : withoutName(block))
                target.push_back(std::move(part));
            return;
        }
        takeFilm(block);
        main_.push_back(block);
    }

    void takeFilm(const Block& block) {
        if (block.inlines.size() != 1 || block.inlines.front().kind != Inline::Kind::Picture)
            return;
        const Inline& picture = block.inlines.front();
        if (!picture.target.endsWith(QStringLiteral(".avi"), Qt::CaseInsensitive))
            return;
        if (!film_.isEmpty())
            faults_.add(picture.at, std::string("une page a un seul film"));
        if (!picture.children.empty() || !picture.title.isEmpty())
            faults_.add(picture.at, std::string("un film n’a pas de légende : ![](film.avi)"));
        film_ = picture.target;
    }

    void surface(const char* directive, const char* spacing, Place place, const Column& column,
                 const Style& style, const std::vector<Block>& blocks) {
        writer_.comesFrom(blocks.front().at);
        writer_.directive(QLatin1String(directive));
        layOut(spacing, place, column, style, blocks);
    }

    void layOut(const char* spacing, Place place, const Column& column, const Style& style,
                const std::vector<Block>& blocks) {
        Style fresh;
        fresh.points = 10; // what every surface starts with
        writer_.forgetStyle(fresh);
        writer_.style(style);
        if (spacing)
            writer_.directive(QLatin1String(spacing));
        if (place != Place::Main)
            writer_.movePenY(kAboveFirst);
        Layout(writer_, texts_, place, column, style).blocks(blocks);
    }

    Positions positions_;
    Faults faults_;
    Writer writer_;
    Texts texts_;
    Block document_;
    std::vector<Block> main_;
    std::vector<Block> margin_;
    std::vector<Block> band_;
    QString film_;
};

} // namespace

CompiledPage MarkdownCompiler::page(std::string_view markdown, int firstLine,
                                    std::string_view title) const {
    return PageCompiler(markdown, firstLine, ruler_).compile(title);
}

} // namespace authoring
