#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace help {

/// A page of the manual.
struct HelpPage {
    QString file;  ///< bare name, by which links lead to it
    QString title; ///< its first heading
    QString html;
    /// What a text document makes of `html`, character by character: blocks end in U+2029, a
    /// picture is U+FFFC. The title is its first block.
    QString text;
};

/// Pages that stand together in the contents.
struct Chapter {
    QString title;
    QList<int> pages; ///< positions in the book
};

/// The manual, as its folder has it: a file of contents ("sommaire.txt": a chapter's title after
/// "# ", then its pages, one file name a line) and a file of HTML for each page.
class HelpBook {
public:
    /// A page that cannot be read is left out.
    explicit HelpBook(const QString& folder = QStringLiteral(":/help/manual"));

    const QString& folder() const { return folder_; }
    const QList<HelpPage>& pages() const { return pages_; }
    const QList<Chapter>& chapters() const { return chapters_; }

    /// Position of the page in `file`.
    std::optional<int> find(const QString& file) const;

private:
    void readLine(const QString& line);

    QString folder_;
    QList<HelpPage> pages_;
    QList<Chapter> chapters_;
};

} // namespace help
