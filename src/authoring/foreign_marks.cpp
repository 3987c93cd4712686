#include "authoring/foreign_marks.h"

#include <algorithm>
#include <cctype>

namespace authoring {

namespace {

constexpr char kPageBreak[] =
    "un saut de page ne se dit pas : chaque page du cours commence une feuille ; la partager en "
    "deux pages, que debutimp et finimp impriment ensemble";
constexpr char kAttributes[] = "les attributs entre accolades ne se lisent pas ; la taille d’une "
                               "image suit son nom : figure.svg#300x200";

struct Mark {
    std::string_view sign;
    const char* sentence;
};
constexpr Mark kMarks[] = {
    {"](", "ce lien ou cette image ne se lit pas : [texte](page:12), ![légende](figure.svg), sans "
           "blanc dans la cible"},
    {"**",
     "ces étoiles ne font rien : celles du gras touchent les mots, **ainsi** (un guillemet ou "
     "une parenthèse au bord veut un blanc de l’autre côté), et se ferment dans le même "
     "paragraphe"},
    {"~~", "un texte barré ne se dessine pas"},
    {"$$", "cette formule ne se ferme pas"},
    {"[^", "une page n’a pas de notes de bas de page : mettre la note entre parenthèses, ou dans "
           "un cadre"},
    {":::", "un cadre s’écrit avec « > » devant chacune de ses lignes"},
    {"{{", "rien ne s’inclut d’un autre fichier, et il n’y a pas de raccourcis entre accolades"},
    {"{#", kAttributes},
    {"{.", kAttributes},
    {"{width", kAttributes},
    {"{height", kAttributes},
};

constexpr std::string_view kBreakCommands[] = {"\\newpage", "\\pagebreak", "\\clearpage"};
constexpr std::string_view kBreakComments[] = {"pagebreak", "page-break", "page break",
                                               "saut de page", "newpage"};

bool isLatinLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

class Namer {
public:
    Namer(std::string_view source, std::size_t offset, std::size_t size, Faults& faults)
        : source_(source), text_(source.substr(offset, size)), offset_(offset), faults_(faults) {}

    void run() {
        commands();
        for (const Mark& mark : kMarks)
            if (const std::size_t at = text_.find(mark.sign); at != text_.npos && !isEscaped(at))
                add(at, "« " + std::string(mark.sign) + " » : " + mark.sentence);
        if (startsLine())
            lineStart();
    }

private:
    void add(std::size_t at, const std::string& sentence) { faults_.add(offset_ + at, sentence); }

    bool isEscaped(std::size_t at) const {
        return at == 0 && offset_ > 0 && source_[offset_ - 1] == '\\';
    }
    bool startsLine() const { return offset_ == 0 || source_[offset_ - 1] == '\n'; }

    /// Commands of TeX outside of a formula.
    void commands() {
        for (std::size_t at = text_.find('\\'); at != text_.npos; at = text_.find('\\', at + 1)) {
            if (at + 1 >= text_.size() || !isLatinLetter(text_[at + 1]) || isEscaped(at))
                continue;
            std::size_t end = at + 1;
            while (end < text_.size() && isLatinLetter(text_[end]))
                ++end;
            const std::string_view command = text_.substr(at, end - at);
            const bool breaksPage = std::find(std::begin(kBreakCommands), std::end(kBreakCommands),
                                              command) != std::end(kBreakCommands);
            add(at, "« " + std::string(command) + " » : " +
                        (breaksPage ? kPageBreak
                                    : "une formule s’écrit entre deux signes « $ » ; un signe "
                                      "« \\ » s’écrit « \\\\ »"));
        }
        if (isEscaped(0) && text_.starts_with('('))
            add(0, "« \\( » : une formule s’écrit entre deux signes « $ »");
    }

    void lineStart() {
        const std::size_t signs = std::min(text_.find_first_not_of('#'), text_.size());
        if (signs > 0)
            add(0, "« " + std::string(text_.substr(0, signs)) +
                       " » : un titre a un blanc après ses signes « # » ; une directive va dans un "
                       "bloc ```directives");
        if (text_.size() > 2 && text_.starts_with('|') && text_.ends_with('|') && !goesOn('|'))
            add(0, "« | » : un tableau a une ligne d’en-tête, puis une ligne |---|---| d’autant de "
                   "colonnes, de trois tirets au moins");
    }

    /// Whether the line before begins with the same sign, which was told of there.
    bool goesOn(char sign) const {
        if (offset_ < 2)
            return false;
        const std::size_t start = source_.rfind('\n', offset_ - 2) + 1; // 0 on the first line
        return source_[start] == sign;
    }

    std::string_view source_;
    std::string_view text_;
    std::size_t offset_;
    Faults& faults_;
};

} // namespace

void nameForeignMarks(std::string_view source, std::size_t offset, std::size_t size,
                      Faults& faults) {
    Namer(source, offset, size, faults).run();
}

void namePageBreak(std::string_view text, std::size_t offset, Faults& faults) {
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const bool isBreak =
        std::any_of(std::begin(kBreakComments), std::end(kBreakComments),
                    [&](std::string_view words) { return small.find(words) != small.npos; });
    if (isBreak)
        faults.add(offset, std::string(kPageBreak));
}

void nameOpenFence(std::string_view source, const Block& code, std::size_t last, Faults& faults) {
    std::size_t end = source.find('\n', last);
    std::string_view line;
    while (end != source.npos && line.find_first_not_of(" \t>") == line.npos) {
        const std::size_t start = end + 1;
        end = source.find('\n', start);
        line = source.substr(start, end - start);
    }
    if (line.find("```") == line.npos && line.find("~~~") == line.npos)
        faults.add(code.lines.front().at,
                   std::string("ce bloc ne finit pas : il manque sa dernière ligne, ```"));
}

} // namespace authoring
