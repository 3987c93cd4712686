#include "authoring/inlines.h"

#include "authoring/formula_setter.h"
#include "authoring/targets.h"
#include "authoring/typography.h"
#include "markup/drawn_page.h"
#include "page/twips.h"

namespace authoring {

namespace {

using page::kTwipsPerPixel;

constexpr double kSymbolWidthPx = 24;
/// Between a symbol and the text of its link, and between links with symbols, in pixels.
constexpr int kSymbolGapPx = 4;
constexpr int kLinkGapPx = 18;
/// A field and the icon of a question's link are taller than a line, in pixels above and below.
constexpr int kFieldRoom = 9;
constexpr int kIconRoom = 5;

constexpr QStringView kSymbol = u"symbole:";
constexpr QStringView kVideo = u"video:";

/// What the page language ends a line with; a text cannot hold it at its end.
constexpr char32_t kParagraphEnd = U'\u00B6';

Piece move(const Style& style, int pixels) {
    return {style, QStringLiteral("##PIX%1").arg(pixels, 3, 10, QChar(u'0')), true,
            pixels * kTwipsPerPixel};
}

bool isAnswer(const QString& target) {
    return target == u"réponse" || target == u"reponse";
}

class Flattener {
public:
    Flattener(Texts& texts, int strongInk) : texts_(texts), strongInk_(strongInk) {}

    InlineText flatten(const std::vector<Inline>& inlines, const Style& style) {
        add(inlines, {style, false, false});
        composeFrench(out_);
        return std::move(out_);
    }

private:
    struct Mood {
        Style style;
        bool strong = false;
        bool emphasised = false;
    };

    Style shown(const Mood& mood) const {
        Style style = mood.style;
        style.bold = style.bold || mood.strong;
        if (mood.strong && mood.emphasised)
            style.ink = kTermInk;
        else if (mood.strong && strongInk_ != kBlackInk)
            style.ink = strongInk_;
        style.italic = mood.emphasised ? !mood.strong : style.italic;
        return style;
    }

    void add(const std::vector<Inline>& inlines, const Mood& mood) {
        for (const Inline& element : inlines)
            add(element, mood);
    }

    void add(const Inline& element, Mood mood) {
        switch (element.kind) {
        case Inline::Kind::Text:
            return text(element, shown(mood));
        case Inline::Kind::Break:
            return put(Atom::Kind::Break, shown(mood), element.at);
        case Inline::Kind::Emphasis:
            mood.emphasised = true;
            return add(element.children, mood);
        case Inline::Kind::Strong:
            mood.strong = true;
            return add(element.children, mood);
        case Inline::Kind::Code: {
            Style style = shown(mood);
            style.face = kTimes;
            return text(element, style);
        }
        case Inline::Kind::Formula:
        case Inline::Kind::DisplayFormula:
            return formula(element, shown(mood));
        case Inline::Kind::Link:
            return link(element, mood);
        case Inline::Kind::Picture:
            return picture(element, shown(mood));
        }
    }

    void put(Atom::Kind kind, const Style& style, std::size_t at, char32_t character = 0) {
        Atom atom;
        atom.kind = kind;
        atom.style = style;
        atom.at = at;
        atom.character = character;
        out_.atoms.push_back(atom);
    }

    void put(Box box, const Style& style, std::size_t at) {
        put(Atom::Kind::Box, style, at);
        out_.atoms.back().box = out_.boxes.size();
        out_.boxes.push_back(std::move(box));
    }

    void text(const Inline& element, const Style& style) {
        std::size_t at = element.at;
        for (const uint code : element.text.toUcs4()) {
            const auto character = static_cast<char32_t>(code);
            if (character == kParagraphEnd)
                fault(at, u"le signe « ¶ » finit les lignes du langage des pages et ne s’écrit pas "
                          u"dans un texte");
            put(Atom::Kind::Character, style, at, character);
            at += character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
        }
    }

    void formula(const Inline& element, const Style& style) {
        if (style.link >= 0)
            fault(element.at, u"une formule ne peut pas être un lien : la mettre à côté");
        FormulaText source(element.text, element.at, texts_.faults);
        setFormula(readFormula(source), source, style, texts_.ruler, out_);
    }

    void link(const Inline& element, const Mood& mood) {
        if (texts_.question)
            return questionLink(element, shown(mood));
        if (isAnswer(element.target))
            return fault(element.at, u"une réponse à taper ne va que dans une question");
        const auto target = readTarget(element.target, element.at, texts_.faults);
        if (!target)
            return;
        Mood inside = mood;
        inside.style.ink = kLinkInk;
        inside.style.link = static_cast<int>(out_.links.size());
        out_.links.push_back(target->code());
        std::vector<Inline> words = element.children;
        if (!words.empty() && isPicture(words.front(), kSymbol)) {
            signOfLink(element, words.front(), shown(mood), target->code());
            words.erase(words.begin());
            trimStart(words);
        } else if (!element.title.isEmpty()) {
            fault(element.at, u"une bulle d’aide ne va qu’à un lien qui commence par un symbole : "
                              u"[![](symbole:LK) texte](page:N \"bulle\")");
        }
        if (words.empty() && plainText(element.children).isEmpty() && out_.atoms.empty())
            fault(element.at, u"ce lien n’a pas de texte");
        add(words, inside);
    }

    static void trimStart(std::vector<Inline>& words) {
        if (words.empty() || words.front().kind != Inline::Kind::Text)
            return;
        while (words.front().text.startsWith(u' ')) {
            words.front().text.remove(0, 1);
            ++words.front().at;
        }
        if (words.front().text.isEmpty())
            words.erase(words.begin());
    }

    /// The symbol before a link's text; it leads there too, and carries the tooltip.
    void signOfLink(const Inline& element, const Inline& symbol, const Style& style,
                    const QString& code) {
        complainAboutWords(symbol);
        const QString key =
            readKey(symbol.target, kSymbol, symbol.at, texts_.faults).value_or(QString());
        const Inline title{Inline::Kind::Text, element.at, element.title, {}, {}};
        const QString bubble = captionOf({title}, texts_);
        Box box =
            symbolBox(bubble.isEmpty() ? QStringLiteral("##LIERI") + key + code
                                       : QStringLiteral("##LIERX") + key + bubble + u'#' + code,
                      style);
        if (followsSign_)
            box.pieces.insert(box.pieces.begin(), move(style, kLinkGapPx));
        if (followsSign_)
            box.width += kLinkGapPx * kTwipsPerPixel;
        box.add(move(style, kSymbolGapPx));
        put(std::move(box), style, element.at);
        followsSign_ = true;
        ++texts_.pictureLinks;
    }

    void questionLink(const Inline& element, const Style& style) {
        if (!element.title.isEmpty())
            fault(element.at, u"dans une question, un lien et une réponse n’ont pas de bulle");
        if (isAnswer(element.target))
            return answerField(element, style);
        const auto target = readTarget(element.target, element.at, texts_.faults);
        if (!target)
            return;
        if (target->kind != Target::Kind::Page || ++texts_.questionLinks > 1)
            return fault(element.at, u"une question, commentaire compris, a un lien au plus, vers "
                                     u"une page");
        const QString caption = captionOf(element.children, texts_);
        Style shown = style;
        shown.ink = kLinkInk;
        Box box;
        box.add({shown,
                 QStringLiteral("##EXOLI%1#%2").arg(caption, QString::number(target->number)), true,
                 markup::AnswerFields::kIconWidth + markup::AnswerFields::kIconGap +
                     texts_.ruler.width(shown, caption)});
        box.rise = box.drop = kIconRoom;
        put(std::move(box), style, element.at);
    }

    void answerField(const Inline& element, const Style& style) {
        if (texts_.answer)
            return fault(element.at, u"une question a une seule réponse à taper");
        texts_.answer =
            TypedAnswer{plainText(element.children).split(QStringLiteral(" / ")), element.at};
        Box box;
        box.add({style, QStringLiteral("##EXOTX"), true, markup::AnswerFields::kTextBoxWidth});
        box.rise = box.drop = kFieldRoom;
        put(std::move(box), style, element.at);
    }

    void picture(const Inline& element, const Style& style) {
        if (const auto key = readKey(element.target, kSymbol, element.at, texts_.faults)) {
            complainAboutWords(element);
            return put(symbolBox(QStringLiteral("##IJA") + *key, style), style, element.at);
        }
        if (texts_.question && element.target.startsWith(kVideo))
            return questionVideo(element, style);
        fault(element.at, u"une image, un film ou un menu se met seul dans son paragraphe, avec "
                          u"une ligne vide avant et après");
    }

    void questionVideo(const Inline& element, const Style& style) {
        const auto target =
            readTarget(QStringLiteral("page:") + element.target.sliced(kVideo.size()), element.at,
                       texts_.faults);
        if (!target)
            return;
        const QString line =
            QStringLiteral("##EXOVI%1#%2").arg(plainText(element.children)).arg(target->number);
        put(symbolBox(line, style), style, element.at);
    }

    void complainAboutWords(const Inline& symbol) {
        if (!plainText(symbol.children).isEmpty() || !symbol.title.isEmpty())
            fault(symbol.at, u"un symbole n’a ni texte ni bulle : ![](symbole:XX)");
    }

    void fault(std::size_t at, const char16_t* sentence) {
        texts_.faults.add(at, QString::fromUtf16(sentence));
    }

    Texts& texts_;
    int strongInk_;
    InlineText out_;
    bool followsSign_ = false;
};

} // namespace

InlineText flatten(const std::vector<Inline>& inlines, const Style& style, Texts& texts,
                   int strongInk) {
    return Flattener(texts, strongInk).flatten(inlines, style);
}

QString captionOf(const std::vector<Inline>& inlines, Texts& texts) {
    QString caption;
    for (const Atom& atom : flatten(inlines, {}, texts).atoms) {
        if (atom.kind == Atom::Kind::Box)
            texts.faults.add(atom.at, std::string("ici ne va qu’un texte simple"));
        else
            caption += atom.character ? QString::fromUcs4(&atom.character, 1) : QStringLiteral(" ");
    }
    return caption;
}

Box symbolBox(const QString& directive, const Style& style) {
    Box box;
    box.add({style, QStringLiteral("##PIY-03"), true, 0});
    box.add({style, directive, true, kSymbolWidthPx * kTwipsPerPixel});
    box.add({style, QStringLiteral("##PIY003"), true, 0});
    return box;
}

bool isPicture(const Inline& element, QStringView word) {
    return element.kind == Inline::Kind::Picture && element.target.startsWith(word);
}

} // namespace authoring
