#pragma once

#include "help/help_book.h"

#include <QPixmap>
#include <QTextDocument>

namespace help {

/// How pages of the manual look, for a style sheet of QTextDocument; `zoom` enlarges the text.
QString pageStyle(double zoom = 1);

/// A picture that a page names: "icone/NAME", a drawing of the buttons, or "captures/NAME.png", a
/// picture of a window taken at twice its size. For a device of `ratio` pixels to a logical one;
/// null for every other name, wherever it may lead.
QPixmap pagePicture(const QString& folder, const QString& name, double ratio);

/// A page by itself, for printing.
class PageDocument : public QTextDocument {
public:
    PageDocument(const HelpBook& book, const HelpPage& page);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    const HelpBook& book_;
};

} // namespace help
