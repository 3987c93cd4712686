#include "search/coordon_opener.h"

namespace search {

namespace {

viewer::FoundWords foundWords(const Query& query) {
    viewer::FoundWords found;
    for (const std::u16string& word : query.words)
        found.words.push_back(QString::fromStdU16String(word));
    found.ignoreAccents = query.ignoreAccents;
    return found;
}

} // namespace

void CoordonOpener::open() {
    Coordon coordon(state_, last_, fonts_, &mainWindow_);
    coordon.exec();
    if (state_.SearchChosenPage != 0)
        words_ = search::foundWords(*coordon.query());
}

} // namespace search
