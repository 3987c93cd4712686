#include "help/manual_proposal.h"

#include "help/document_sheets.h"
#include "help/page_document.h"

namespace help {

namespace {

QString titleOf(const HelpPage& page) {
    return QStringLiteral("Aide d’Orvalente – ") + page.title;
}

} // namespace

QStringList ManualProposal::choices() const {
    return {QStringLiteral("Cette page"),
            QStringLiteral("Toute l’aide (%1 pages)").arg(pageCount(1))};
}

int ManualProposal::pageCount(int choice) const {
    return choice == 0 ? 1 : static_cast<int>(book_.pages().size());
}

std::vector<page::Sheet> ManualProposal::sheets(int choice, int page,
                                                const platform::Paper& paper) {
    const int index = pageOf(choice, page);
    const HelpPage& shown = book_.pages()[index];
    PageDocument document(book_, shown);
    auto sheets = documentSheets(document, titleOf(shown), paper, metrics_);
    for (page::Sheet& sheet : sheets) {
        sheet.title = shown.title;
        sheet.number = index + 1;
    }
    return sheets;
}

std::optional<int> ManualProposal::sheetOfTag(int choice, const QString& tag) const {
    const std::optional<int> page = book_.find(tag.section(u'#', 0, 0));
    return page && (choice == 1 || *page == page_) ? std::optional(*page + 1) : std::nullopt;
}

bool ManualProposal::print(int choice, platform::Printer& printer) {
    const QString title =
        choice == 0 ? titleOf(book_.pages()[page_]) : QStringLiteral("Aide d’Orvalente");
    bool isPrinted = printer.begin(
        {title, [this, choice](const QString& tag) { return sheetOfTag(choice, tag); }});
    for (int page = 0; isPrinted && page < pageCount(choice); ++page)
        for (const page::Sheet& sheet : sheets(choice, page, printer.paper()))
            isPrinted = printer.print(sheet) && isPrinted;
    return printer.end() && isPrinted;
}

} // namespace help
