#pragma once

#include "help/help_book.h"
#include "page/text_metrics.h"
#include "platform/printer.h"

#include <map>

namespace help {

/// What the help's print button is about to print: the page shown, or the whole manual.
class ManualProposal : public platform::PrintProposal {
public:
    /// `page` is the one shown, from 0. References must outlive the proposal.
    ManualProposal(const HelpBook& book, int page, const page::TextMetrics& metrics)
        : book_(book), page_(page), metrics_(metrics) {}

    QStringList choices() const override;
    int pageCount(int choice) const override;
    std::vector<page::Sheet> sheets(int choice, int page, const platform::Paper& paper) override;

    /// Prints a choice as one job; false when the printer refused it or the file cannot be written.
    bool print(int choice, platform::Printer& printer);

private:
    int pageOf(int choice, int page) const { return choice == 0 ? page_ : page; }
    std::optional<int> sheetOfTag(int choice, const QString& tag) const;

    const HelpBook& book_;
    int page_;
    const page::TextMetrics& metrics_;
};

} // namespace help
