#pragma once

#include "help/help_book.h"
#include "page/text_metrics.h"
#include "platform/message_box.h"
#include "platform/pdf_opener.h"
#include "platform/printer.h"

#include <QWidget>

class QBoxLayout;

namespace look {
class Button;
class OutcomeLine;
class TextField;
} // namespace look

namespace help {

class HelpBrowser;
class HelpList;
class HitBar;

/// What a page of the manual is printed with.
struct HelpPrinting {
    platform::PrinterSetup& setup;
    platform::PrintPreview& preview;
    platform::Printer& printer;
    const page::TextMetrics& metrics;
    platform::MessageBoxes& messageBoxes;
    platform::PdfOpener& opener;
};

/// The window with the manual: contents or search results at the left, the page at the right.
class HelpWindow : public QWidget {
public:
    HelpWindow(const HelpBook& book, const HelpPrinting& printing);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QBoxLayout* newToolbar();
    QBoxLayout* newPagePart();
    void addKeys();
    void connectHandlers();

    void home();
    void search(const QString& typed);
    void openFound(int page);
    void pageShown();
    void stepHit(int by);
    void print();
    void leaveSearchOrClose();

    const HelpBook& book_;
    HelpPrinting printing_;
    look::TextField* words_;
    HelpList* list_;
    HelpBrowser* browser_;
    HitBar* hitBar_;
    look::OutcomeLine* printed_;
    look::Button* back_ = nullptr;
    look::Button* forward_ = nullptr;
};

} // namespace help
