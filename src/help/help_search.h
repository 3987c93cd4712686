#pragma once

#include "help/help_book.h"

#include <QStringList>

namespace help {

/// A stretch of a text.
struct Span {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const Span&) const = default;
};

/// What is looked for: words, without regard to letter case and accents. A word finds those that
/// begin with it, and a plural its singular, so that "imprim" finds "imprimante" and "pages"
/// "page".
class HelpQuery {
public:
    /// Words beyond the 16th are passed over: nobody asks so much.
    static constexpr qsizetype kMostWords = 16;

    /// Words of one or two letters count only where there is no longer one.
    explicit HelpQuery(const QString& typed = {});

    bool isEmpty() const { return words_.isEmpty(); }
    qsizetype size() const { return words_.size(); }

    /// The words of `text` that are found, each whole, in their order.
    QList<Span> hits(QStringView text) const;

    /// How many of the words looked for `text` has.
    int wordsIn(QStringView text) const;

private:
    qsizetype wordAt(QStringView folded, qsizetype start) const;
    template <class Visit>
    void visitHits(QStringView text, Visit visit) const;

    QStringList words_; ///< folded
};

/// A page that was found.
struct Found {
    int page = 0;     ///< position in the book
    QString line;     ///< a line of the page around the first word found; it may end in "…"
    QList<Span> hits; ///< in `line`
};

/// The pages that have all words or, where none has, as many of them as any has. First those whose
/// title has most of them, then those that say them most often; otherwise in the order of the book.
QList<Found> search(const HelpBook& book, const HelpQuery& query);

} // namespace help
