#include "help/help_opener.h"

#include "platform/file_names.h"

namespace help {

HelpOpener::~HelpOpener() {
    delete window_;
}

void HelpOpener::open() {
    const auto file = platform::findWithoutCase(installDir_, QStringLiteral("ZEKX.hlp"));
    if (!file || !viewer_.show(*file))
        openManual();
}

void HelpOpener::openManual() {
    if (!book_)
        book_.emplace();
    if (!window_) {
        window_ = new HelpWindow(*book_, printing_);
        window_->setAttribute(Qt::WA_DeleteOnClose);
        // The help is no reason for the program to go on.
        window_->setAttribute(Qt::WA_QuitOnClose, false);
    }
    if (window_->isMinimized())
        window_->showNormal();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

} // namespace help
