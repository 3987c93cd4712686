#pragma once

#include "look/sheet_walk.h"
#include "page/faces/font_book.h"

#include <QDialog>
#include <QPageLayout>

#include <functional>

class QBoxLayout;
class QLabel;

namespace look {

class Button;
class PaperControls;
class SheetView;

/// Shows what is about to be printed, sheet by sheet, and lets choose which pages, and the paper.
class PrintPreviewDialog : public QDialog {
public:
    struct Parts {
        platform::PrintProposal& proposal;
        const page::FontBook& fonts;
        platform::PrintTarget target;
        QPageLayout layout; ///< that the printer is set to
        /// Sets the printer to another layout and tells what paper that gives.
        std::function<platform::Paper(const QPageLayout&)> setLayout;
    };
    /// References must outlive the dialog.
    PrintPreviewDialog(const Parts& parts, QWidget* parent);

    int choice() const { return walk_.choice(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QBoxLayout* newControls();
    QBoxLayout* newSheets();
    QBoxLayout* newButtons();
    void addHeading(QBoxLayout& column, const QString& words);
    void step(int by);
    void showSheet();

    Parts parts_;
    SheetWalk walk_;
    PaperControls* paper_;
    SheetView* view_;
    QLabel* words_;
    Button* previous_;
    Button* next_;
};

} // namespace look
