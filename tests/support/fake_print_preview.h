#pragma once

#include "platform/pdf_opener.h"
#include "platform/printer.h"

#include <QStringList>

namespace test_support {

/// A person who looks at a preview and decides.
class FakePrintPreview : public platform::PrintPreview {
public:
    std::optional<int> ask(platform::PrintProposal& proposal) override {
        ++asked;
        choices = proposal.choices();
        if (look)
            look(proposal);
        return answer;
    }

    std::optional<int> answer = 0;
    std::function<void(platform::PrintProposal&)> look;
    int asked = 0;
    QStringList choices;
};

/// Notes down what is to be shown.
class FakePdfOpener : public platform::PdfOpener {
public:
    bool open(const QString& file) override {
        files.append(file);
        return canOpen;
    }

    QStringList files;
    bool canOpen = true;
};

} // namespace test_support
