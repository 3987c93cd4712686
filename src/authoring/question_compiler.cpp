#include "authoring/layout.h"
#include "authoring/markdown_compiler.h"
#include "authoring/reader.h"
#include "authoring/typed_answer.h"

#include <algorithm>

namespace authoring {

namespace {

constexpr Column kColumn{0, 590, 0};
constexpr Style kStyle{};
constexpr int kAboveFirst = 6;
constexpr int kAboveComment = 12;
constexpr int kCommentTint = 2;
constexpr int kAroundLink = 8;

enum QuestionType { kCheckBoxes = 1, kOptionButtons = 2, kTypedAnswer = 3 };
constexpr std::size_t kMostChoices = 5;
constexpr int kCommentLevel = 2;

bool isChoices(const Block& block) {
    return block.kind == Block::Kind::List &&
           std::any_of(block.children.begin(), block.children.end(),
                       [](const Block& item) { return item.task != Block::Task::None; });
}

/// The heading itself is seen nowhere.
bool isCommentHeading(const Block& block) {
    QString words = plainText(block.inlines).simplified().toLower();
    return words.replace(QChar(0x2019), u'\'') == u"si c'est faux";
}

bool isLinkAlone(const Block& block) {
    return block.kind == Block::Kind::Paragraph && block.inlines.size() == 1 &&
           block.inlines.front().kind == Inline::Kind::Link;
}

class QuestionCompiler {
public:
    QuestionCompiler(std::string_view markdown, int firstLine, const Ruler& ruler)
        : positions_(markdown, firstLine), faults_(positions_), texts_{ruler, faults_, true},
          document_(readMarkdown(markdown, faults_)) {}

    CompiledQuestion compile(std::optional<int> askedType) {
        const auto comment = std::find_if(
            document_.children.begin(), document_.children.end(), [](const Block& block) {
                return block.kind == Block::Kind::Heading && block.level == kCommentLevel;
            });
        const std::vector<Block> asked(document_.children.begin(), comment);
        CompiledQuestion compiled;
        findChoices(asked, askedType, compiled);
        compiled.question = questionText(asked, compiled.type);
        finishAnswer(askedType, compiled);
        if (comment != document_.children.end() && !isCommentHeading(*comment))
            fault(comment->at,
                  "ce titre ne se verrait pas : « ## Si c’est faux » annonce ce qui se "
                  "montre après une réponse fausse, et une question n’a pas d’autre "
                  "titre ##");
        if (comment != document_.children.end())
            compiled.siFaux = commentText({comment + 1, document_.children.end()});
        compiled.descriptions = std::move(texts_.descriptions);
        compiled.faults = faults_.sorted();
        if (!compiled.faults.empty())
            compiled.type = 0;
        return compiled;
    }

private:
    void fault(std::size_t at, const char* sentence) { faults_.add(at, std::string(sentence)); }

    void findChoices(const std::vector<Block>& blocks, std::optional<int> askedType,
                     CompiledQuestion& compiled) {
        for (const Block& block : blocks) {
            if (!isChoices(block))
                continue;
            if (compiled.type != 0) {
                fault(block.at, "une question a une seule liste de choix");
                continue;
            }
            compiled.type = kOptionButtons;
            readChoices(block, askedType, compiled);
        }
    }

    void readChoices(const Block& list, std::optional<int> askedType, CompiledQuestion& compiled) {
        std::size_t right = 0;
        for (const Block& choice : list.children) {
            if (choice.task == Block::Task::None)
                fault(choice.at, "chaque choix commence par une case : [ ] ou [x]");
            right += choice.task == Block::Task::Ticked ? 1 : 0;
            compiled.solution += choice.task == Block::Task::Ticked ? '1' : '0';
        }
        if (list.children.size() < 2 || list.children.size() > kMostChoices)
            fault(list.at, "une question a de deux à cinq choix");
        if (right == 0)
            fault(list.at, "aucun choix n’est coché : mettre [x] devant les bons");
        compiled.solution.resize(kMostChoices, '0');
        if (right > 1 || askedType == kCheckBoxes)
            compiled.type = kCheckBoxes;
        if (askedType && *askedType != compiled.type)
            fault(list.at, "« type » ne va pas avec ces choix : 1 pour plusieurs bonnes réponses, "
                           "2 pour une seule");
    }

    CompiledText questionText(const std::vector<Block>& blocks, int type) {
        Writer writer(positions_);
        start(writer, blocks);
        writer.directive(QStringLiteral("##INTER1.30"));
        writer.movePenY(kAboveFirst);
        Layout layout(writer, texts_, Place::Main, kColumn, kStyle);
        for (const Block& block : blocks) {
            writer.comesFrom(block.at);
            if (isChoices(block))
                layout.choices(block, type == kCheckBoxes ? QStringLiteral("##EXOCK")
                                                          : QStringLiteral("##EXOOP"));
            else
                layout.blocks({block});
        }
        writer.style(kStyle);
        writer.movePenY(kAroundLink);
        return writer.text();
    }

    void start(Writer& writer, const std::vector<Block>& blocks) {
        writer.comesFrom(blocks.empty() ? 0 : blocks.front().at);
        Style fresh;
        fresh.points = 10; // what a drawing starts with
        writer.forgetStyle(fresh);
        writer.style(kStyle);
    }

    void finishAnswer(std::optional<int> askedType, CompiledQuestion& compiled) {
        if (texts_.answer && compiled.type != 0)
            return fault(texts_.answer->at, "une question a des choix ou une réponse à taper, pas "
                                            "les deux");
        if (!texts_.answer && compiled.type == 0)
            return fault(0, "il manque la réponse : une liste de choix, - [x] pour les bons, ou "
                            "une réponse à taper, [fer](réponse)");
        if (!texts_.answer)
            return;
        compiled.type = kTypedAnswer;
        compiled.solution = solutionOf(*texts_.answer, faults_).toStdString();
        if (askedType && *askedType != kTypedAnswer)
            fault(texts_.answer->at, "« type » ne va pas avec une réponse à taper : 3");
    }

    /// The comment stands in a frame under the question; links alone in a paragraph below it.
    CompiledText commentText(const std::vector<Block>& blocks) {
        Writer writer(positions_);
        writer.comesFrom(blocks.empty() ? 0 : blocks.front().at);
        // It goes on where the question left the pen, in the style that it ended with.
        writer.movePenY(kAboveComment);
        const bool answered = texts_.answer.has_value();
        std::vector<Block> framed;
        std::vector<Block> links;
        for (const Block& block : blocks)
            (isLinkAlone(block) ? links : framed).push_back(block);
        if (!framed.empty())
            Layout(writer, texts_, Place::Main, kColumn, kStyle).frame(framed, kCommentTint);
        for (const Block& link : links) {
            writer.movePenY(kAroundLink);
            Layout(writer, texts_, Place::Main, kColumn, kStyle).blocks({link});
        }
        writer.style(kStyle);
        writer.movePenY(kAroundLink);
        if (texts_.answer && !answered)
            fault(texts_.answer->at, "la réponse à taper se met dans la question");
        return writer.text();
    }

    Positions positions_;
    Faults faults_;
    Texts texts_;
    Block document_;
};

} // namespace

CompiledQuestion MarkdownCompiler::question(std::string_view markdown, int firstLine,
                                            std::optional<int> askedType) const {
    return QuestionCompiler(markdown, firstLine, ruler_).compile(askedType);
}

} // namespace authoring
