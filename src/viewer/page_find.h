#pragma once

#include "viewer/found_words.h"
#include "viewer/occurrences.h"

#include <compare>
#include <cstddef>
#include <optional>
#include <vector>

namespace viewer {

/// What to look for when a person types this into the field of the find bar: the text as a whole,
/// blanks inside included. An accent in it is meant: then accents count. Who types none finds the
/// word however it is accented.
FoundWords typedWords(const QString& typed);

/// The occurrences of words on the shown page, one of them current, and the walk from one to the
/// next, on from the last to the first.
class PageFind {
public:
    /// Text is searched on the surfaces in this order, each as far as this much of it can be seen.
    struct Part {
        page::SurfaceId surface;
        QRectF seen; ///< twips
    };

    /// Where reading has come to.
    struct Place {
        std::size_t part;
        double lineTop; ///< twips, like x
        double x;

        auto operator<=>(const Place&) const = default;
    };

    struct Found {
        Place place;
        QRectF area; ///< twips
    };

    /// Looks for the words anew; the first at or behind `from` becomes current, from the end on
    /// the very first.
    void search(FoundWords sought, const page::Recording& recording,
                const page::TextMetrics& metrics, const std::vector<Part>& parts,
                const Place& from);
    /// Looks for nothing.
    void clear();
    /// Keeps the words, for the page that comes.
    void forgetPage();

    void next();
    void previous();

    const FoundWords& sought() const { return sought_; }
    const std::vector<Found>& found() const { return found_; }
    /// Index of the current one; nothing when none was found.
    std::optional<std::size_t> current() const;
    /// Whether there are more than were looked for.
    bool isCutOff() const { return cutOff_; }

private:
    FoundWords sought_;
    std::vector<Found> found_;
    std::size_t current_ = 0;
    bool cutOff_ = false;
};

/// "3 sur 12" for the current occurrence, "Aucune occurrence", or nothing while nothing is sought.
QString findStatus(const PageFind& find);

} // namespace viewer
