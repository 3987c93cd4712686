// What somebody types where words are looked for, against what stands in pages: the first line is
// typed, the rest is a page.

#include "formats/all.h"
#include "help/help_search.h"
#include "search/folded_text.h"
#include "search/query.h"
#include "search/visible_words.h"
#include "text/utf8.h"
#include "viewer/page_code.h"

#include <algorithm>

namespace fuzz {

namespace {

void requireSpans(const QList<help::Span>& spans, qsizetype length) {
    qsizetype behind = 0;
    for (const help::Span& span : spans) {
        require(span.start >= behind && span.length > 0 && span.start + span.length <= length,
                "hits stand in the text, one behind the other");
        behind = span.start + span.length;
    }
}

void readOne(Input input) {
    const std::string_view text = textOf(input);
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::u16string typed = text::toUtf16(text.substr(0, end));
    const std::u16string page = text::toUtf16(text.substr(end));
    search::FoldedText folded;
    for (const char16_t unit : page)
        folded.unit(unit);
    folded.endText();
    std::vector<std::string> looked;
    for (const std::u16string& word : search::queryWords(typed)) {
        require(!word.empty(), "a word has letters");
        looked.push_back(search::foldedWord(word, false));
    }
    search::areVisible(looked, true, folded.text(0));
    const QString words = QString::fromStdU16String(typed);
    const QString shown = QString::fromStdU16String(page);
    const help::HelpQuery query(words);
    requireSpans(query.hits(shown), shown.size());
    require(query.wordsIn(shown) <= query.size(), "no more words are found than looked for");
    viewer::codeArgument(words);
}

} // namespace

const Format kTypedWords{
    "typed-words",
    readOne,
    {{"fuzz/corpus/typed-words", ""}, {"docs/gallery", ".src"}},
    {"\n", " ", "é", "É", "œ", "ß", "İ", "e\xCC\x81", "’", "'", "-", "\"", "*", "PAG012", "##",
     "\xC2\xA0", "\xF0\x9D\x91\x8E", "\xED\xA0\x80"},
    16 * 1024,
};

} // namespace fuzz
