// Course pages in the page language, on screen, on paper and in files.

#include "drawings.h"
#include "formats/all.h"
#include "markup/any_page.h"
#include "viewer/page_sheet.h"

namespace fuzz {

namespace {

void readOne(Input input) {
    static test_support::PageBench bench;
    const QString source = pageText(textOf(input));
    test_support::drawAnyWay(source, bench);
    markup::DrawingState state;
    const auto drawn = markup::drawPage({source}, {state, bench.pictures, fonts()});
    playEverywhere(drawn.recording, viewer::pageSheet(drawn, fonts()));
}

} // namespace

const Format kPageSource{
    "page-source",
    readOne,
    {{"docs/gallery", ".src"}, {"fuzz/corpus/page-source", ""}},
    pageWords({"¶", "§", "\n", ",", ";", "#", "|", "-1", "0", "1e9", "99999", "32767", "32768",
               "2147483648", "é", "\xC2\xA0", "\xEF\xBF\xBF", "\t", "##"}),
    20'000,
};

} // namespace fuzz
