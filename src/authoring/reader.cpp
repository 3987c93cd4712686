#include "authoring/reader.h"

#include "authoring/coverage.h"
#include "authoring/entities.h"
#include "authoring/foreign_marks.h"

#include <md4c.h>

#include <algorithm>
#include <functional>
#include <optional>

namespace authoring {

namespace {

constexpr unsigned kFlags =
    MD_FLAG_TABLES | MD_FLAG_TASKLISTS | MD_FLAG_LATEXMATHSPANS | MD_FLAG_NOINDENTEDCODEBLOCKS;
constexpr std::size_t kUnknown = static_cast<std::size_t>(-1);

/// NFC, so that an accent written apart has no width of its own.
QString fromUtf8(const char* text, std::size_t size) {
    return QString::fromUtf8(text, static_cast<qsizetype>(size))
        .normalized(QString::NormalizationForm_C);
}

QString fromAttribute(const MD_ATTRIBUTE& attribute) {
    return fromUtf8(attribute.text, attribute.size);
}

class Reader {
public:
    Reader(std::string_view source, Faults& faults)
        : source_(source), faults_(faults), coverage_(source) {}

    Block read() {
        open_.push_back({});
        if (const std::size_t feed = source_.find('\f'); feed != source_.npos)
            namePageBreak("page break", feed, faults_);
        MD_PARSER parser{};
        parser.flags = kFlags;
        parser.enter_block = [](MD_BLOCKTYPE type, void* detail, void* self) {
            return static_cast<Reader*>(self)->enterBlock(type, detail);
        };
        parser.leave_block = [](MD_BLOCKTYPE type, void*, void* self) {
            return static_cast<Reader*>(self)->leaveBlock(type);
        };
        parser.enter_span = [](MD_SPANTYPE type, void* detail, void* self) {
            return static_cast<Reader*>(self)->enterSpan(type, detail);
        };
        parser.leave_span = [](MD_SPANTYPE type, void*, void* self) {
            return static_cast<Reader*>(self)->leaveSpan(type);
        };
        parser.text = [](MD_TEXTTYPE type, const MD_CHAR* text, MD_SIZE size, void* self) {
            return static_cast<Reader*>(self)->text(type, text, size);
        };
        if (md_parse(source_.data(), static_cast<MD_SIZE>(source_.size()), &parser, this) != 0) {
            if (!faults_.any())
                faults_.add(last_, std::string("cette page ne peut pas être lue : la simplifier"));
            return {};
        }
        coverage_.nameUnread(faults_);
        return std::move(open_.front());
    }

private:
    static constexpr int kGoOn = 0;
    static constexpr int kStop = 1;

    int enterBlock(MD_BLOCKTYPE type, void* detail) {
        if (type == MD_BLOCK_DOC || type == MD_BLOCK_THEAD || type == MD_BLOCK_TBODY) {
            inHead_ = type == MD_BLOCK_THEAD;
            return kGoOn;
        }
        closeImplicit();
        Block block;
        block.at = kUnknown;
        describe(block, type, detail);
        return push(std::move(block));
    }

    void describe(Block& block, MD_BLOCKTYPE type, void* detail) {
        using Kind = Block::Kind;
        switch (type) {
        case MD_BLOCK_QUOTE:
            block.kind = Kind::Quote;
            break;
        case MD_BLOCK_UL:
            block.kind = Kind::List;
            block.tight = static_cast<MD_BLOCK_UL_DETAIL*>(detail)->is_tight != 0;
            break;
        case MD_BLOCK_OL:
            block.kind = Kind::List;
            block.ordered = true;
            block.tight = static_cast<MD_BLOCK_OL_DETAIL*>(detail)->is_tight != 0;
            block.level = static_cast<int>(static_cast<MD_BLOCK_OL_DETAIL*>(detail)->start);
            block.delimiter = static_cast<MD_BLOCK_OL_DETAIL*>(detail)->mark_delimiter;
            break;
        case MD_BLOCK_LI:
            describeItem(block, *static_cast<MD_BLOCK_LI_DETAIL*>(detail));
            break;
        case MD_BLOCK_H:
            block.kind = Kind::Heading;
            block.level = static_cast<int>(static_cast<MD_BLOCK_H_DETAIL*>(detail)->level);
            break;
        case MD_BLOCK_CODE:
            block.kind = Kind::Code;
            block.info = fromAttribute(static_cast<MD_BLOCK_CODE_DETAIL*>(detail)->lang);
            mark(static_cast<MD_BLOCK_CODE_DETAIL*>(detail)->lang);
            break;
        case MD_BLOCK_TH:
        case MD_BLOCK_TD:
            block.kind = Kind::Cell;
            block.alignment = alignmentOf(static_cast<MD_BLOCK_TD_DETAIL*>(detail)->align);
            break;
        case MD_BLOCK_TR:
            block.kind = Kind::Row;
            block.heading = inHead_;
            break;
        default:
            block.kind = type == MD_BLOCK_HR      ? Kind::Rule
                         : type == MD_BLOCK_HTML  ? Kind::Html
                         : type == MD_BLOCK_TABLE ? Kind::Table
                                                  : Kind::Paragraph;
        }
    }

    void describeItem(Block& block, const MD_BLOCK_LI_DETAIL& item) {
        block.kind = Block::Kind::Item;
        if (!item.is_task)
            return;
        block.task = item.task_mark == ' ' ? Block::Task::Open : Block::Task::Ticked;
        block.at = item.task_mark_offset;
        coverage_.mark(item.task_mark_offset, 1);
    }

    static Alignment alignmentOf(MD_ALIGN align) {
        return align == MD_ALIGN_CENTER  ? Alignment::Centre
               : align == MD_ALIGN_RIGHT ? Alignment::Right
                                         : Alignment::Left;
    }

    int leaveBlock(MD_BLOCKTYPE type) {
        if (!spans_.empty())
            return entangled();
        if (type == MD_BLOCK_DOC || type == MD_BLOCK_THEAD || type == MD_BLOCK_TBODY)
            return kGoOn;
        closeImplicit();
        if (type == MD_BLOCK_CODE && !open_.back().lines.empty())
            nameOpenFence(source_, open_.back(), last_, faults_);
        pop();
        return kGoOn;
    }

    static Inline::Kind kindOf(MD_SPANTYPE type) {
        using Kind = Inline::Kind;
        return type == MD_SPAN_STRONG              ? Kind::Strong
               : type == MD_SPAN_CODE              ? Kind::Code
               : type == MD_SPAN_LATEXMATH         ? Kind::Formula
               : type == MD_SPAN_LATEXMATH_DISPLAY ? Kind::DisplayFormula
               : type == MD_SPAN_A                 ? Kind::Link
               : type == MD_SPAN_IMG               ? Kind::Picture
                                                   : Kind::Emphasis;
    }

    int enterSpan(MD_SPANTYPE type, void* detail) {
        Inline span;
        span.kind = kindOf(type);
        span.at = kUnknown;
        if (type == MD_SPAN_A)
            takeTarget(span, static_cast<MD_SPAN_A_DETAIL*>(detail)->href,
                       static_cast<MD_SPAN_A_DETAIL*>(detail)->title);
        else if (type == MD_SPAN_IMG)
            takeTarget(span, static_cast<MD_SPAN_IMG_DETAIL*>(detail)->src,
                       static_cast<MD_SPAN_IMG_DETAIL*>(detail)->title);
        openImplicit();
        spans_.push_back(std::move(span));
        return deep() ? tooDeep() : kGoOn;
    }

    /// A target may be all that a picture has; its own place is the best there is then.
    void takeTarget(Inline& span, const MD_ATTRIBUTE& target, const MD_ATTRIBUTE& title) {
        span.target = fromAttribute(target);
        span.title = fromAttribute(title);
        mark(target);
        mark(title);
        const std::size_t offset = offsetOf(target.text);
        if (span.kind == Inline::Kind::Picture && offset != kUnknown)
            seen(offset);
    }

    int leaveSpan(MD_SPANTYPE type) {
        if (spans_.empty() || spans_.back().kind != kindOf(type))
            return entangled();
        Inline span = std::move(spans_.back());
        spans_.pop_back();
        if (span.at == kUnknown)
            span.at = last_;
        add(std::move(span));
        return kGoOn;
    }

    int text(MD_TEXTTYPE type, const MD_CHAR* text, MD_SIZE size) {
        if (const std::size_t offset = offsetOf(text); offset != kUnknown) {
            seen(offset);
            coverage_.mark(offset, size);
            if (type == MD_TEXT_NORMAL)
                nameForeignMarks(source_, offset, size, faults_);
            else if (type == MD_TEXT_HTML)
                namePageBreak(source_.substr(offset, size), offset, faults_);
        }
        if (type == MD_TEXT_HTML || open_.back().kind == Block::Kind::Code)
            return rawText(type, text, size);
        switch (type) {
        case MD_TEXT_BR:
            add({Inline::Kind::Break, last_, {}, {}, {}});
            return kGoOn;
        case MD_TEXT_SOFTBR:
            addText(QStringLiteral(" "));
            return kGoOn;
        case MD_TEXT_NULLCHAR:
            addText(QString(QChar::ReplacementCharacter));
            return kGoOn;
        case MD_TEXT_ENTITY:
            addEntity(fromUtf8(text, size));
            return kGoOn;
        default:
            addText(fromUtf8(text, size));
            return kGoOn;
        }
    }

    void addEntity(const QString& entity) {
        const auto character = entityText(entity);
        if (!character)
            faults_.add(last_, "« " + entity + " » : écrire le caractère lui-même");
        addText(character.value_or(entity));
    }

    int rawText(MD_TEXTTYPE type, const MD_CHAR* text, MD_SIZE size) {
        const QString raw = fromUtf8(text, size);
        if (type == MD_TEXT_HTML && open_.back().kind != Block::Kind::Html) {
            if (!raw.startsWith(QStringLiteral("<!--")))
                faults_.add(last_, "« " + raw +
                                       " » : une page ne contient pas de HTML ; un signe "
                                       "« < » s’écrit « \\< »");
            return kGoOn;
        }
        std::vector<CodeLine>& lines = open_.back().lines;
        if (lines.empty() || lineEnded_)
            lines.push_back({last_, {}});
        else if (lines.back().text.trimmed().isEmpty())
            lines.back().at = last_; // md4c makes the blanks before it itself
        lineEnded_ = raw.endsWith(u'\n');
        lines.back().text += lineEnded_ ? raw.chopped(1) : raw;
        return kGoOn;
    }

    void addText(const QString& text) {
        if (!spans_.empty() && isVerbatim(spans_.back().kind)) {
            spans_.back().text += text;
            return;
        }
        add({Inline::Kind::Text, last_, text, {}, {}});
    }

    static bool isVerbatim(Inline::Kind kind) {
        return kind == Inline::Kind::Code || kind == Inline::Kind::Formula ||
               kind == Inline::Kind::DisplayFormula;
    }

    void add(Inline element) {
        if (!spans_.empty()) {
            spans_.back().children.push_back(std::move(element));
            return;
        }
        openImplicit();
        open_.back().inlines.push_back(std::move(element));
    }

    /// The text of items without blank lines between them stands in no paragraph of its own.
    void openImplicit() {
        if (open_.back().kind != Block::Kind::Item)
            return;
        Block paragraph;
        paragraph.kind = Block::Kind::Paragraph;
        paragraph.at = kUnknown;
        open_.push_back(std::move(paragraph));
        implicit_ = true;
        seen(last_);
    }
    void closeImplicit() {
        if (implicit_) {
            implicit_ = false;
            pop();
        }
    }

    int push(Block block) {
        open_.push_back(std::move(block));
        lineEnded_ = true;
        return deep() ? tooDeep() : kGoOn;
    }
    void pop() {
        Block block = std::move(open_.back());
        open_.pop_back();
        if (block.at == kUnknown)
            block.at = last_;
        open_.back().children.push_back(std::move(block));
    }

    /// md4c pairs signs within targets with signs outside, and then leaves what it never entered.
    int entangled() {
        faults_.add(last_,
                    std::string("des signes de ce paragraphe s’emmêlent : dans la cible d’un "
                                "lien, « [ », « * » ou « ` » se font précéder de « \\ »"));
        return kStop;
    }

    bool deep() const { return open_.size() + spans_.size() > kMaxDepth; }
    int tooDeep() {
        faults_.add(last_, std::string("trop de listes, de cadres ou de styles les uns dans les "
                                       "autres : simplifier"));
        return kStop;
    }

    /// One with escapes in it was made anew by md4c; all of its line counts as read then.
    void mark(const MD_ATTRIBUTE& attribute) {
        const std::size_t offset = offsetOf(attribute.text);
        if (offset != kUnknown)
            return coverage_.mark(offset, attribute.size);
        if (attribute.size > 0) {
            const std::size_t end = std::min(source_.find('\n', last_), source_.size());
            coverage_.mark(last_, end - last_);
        }
    }

    std::size_t offsetOf(const MD_CHAR* text) const {
        const std::less<const MD_CHAR*> before;
        const MD_CHAR* const first = source_.data();
        if (!text || before(text, first) || !before(text, first + source_.size()))
            return kUnknown; // a text that md4c made itself
        return static_cast<std::size_t>(text - first);
    }

    /// Gives a place to all that began without one.
    void seen(std::size_t offset) {
        last_ = offset;
        for (Block& block : open_)
            if (block.at == kUnknown)
                block.at = offset;
        for (Inline& span : spans_)
            if (span.at == kUnknown)
                span.at = offset;
    }

    std::string_view source_;
    Faults& faults_;
    std::vector<Block> open_;
    std::vector<Inline> spans_;
    std::size_t last_ = 0;
    Coverage coverage_;
    bool implicit_ = false;
    bool inHead_ = false;
    bool lineEnded_ = true;
};

} // namespace

Block readMarkdown(std::string_view source, Faults& faults) {
    if (source.size() > kMaxMarkdownBytes) {
        faults.add(0, std::string("plus d’un mégaoctet pour une page : la partager"));
        return {};
    }
    return Reader(source, faults).read();
}

QString plainText(const std::vector<Inline>& inlines) {
    QString text;
    for (const Inline& element : inlines)
        text += element.kind == Inline::Kind::Break ? QStringLiteral(" ")
                                                    : element.text + plainText(element.children);
    return text;
}

} // namespace authoring
