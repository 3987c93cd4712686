#include "viewer/occurrences.h"

#include "page/link_view.h"
#include "page/sign_faces.h"
#include "page/text_lines.h"
#include "text/letters.h"

#include <algorithm>

namespace viewer {

namespace {

using page::TextLine;
using page::TextMetrics;
using page::TextOperation;

/// What all ways to write a character have in common.
QChar folded(QChar character, bool ignoreAccents) {
    const char16_t c = character.unicode();
    return ignoreAccents ? text::plainLetter(c) : text::lowerCase(text::keyboardForm(c));
}

std::vector<QString> foldedWords(const FoundWords& sought) {
    std::vector<QString> words;
    for (const QString& word : sought.words) {
        QString plain = word;
        std::transform(word.begin(), word.end(), plain.begin(),
                       [&](QChar c) { return folded(c, sought.ignoreAccents); });
        if (!plain.isEmpty() && words.size() < kMaxSoughtWords)
            words.push_back(plain);
    }
    return words;
}

/// The text of a line as it is compared, and for each of its characters the run and the character
/// in it that show it.
class FoldedLine {
public:
    FoldedLine(const TextLine& line, bool ignoreAccents, qsizetype mostText)
        : ignoreAccents_(ignoreAccents), mostText_(mostText) {
        double end = 0;
        for (const TextOperation* run : line.runs) {
            if (isBlankBefore(*run, end))
                add(u' ', {nullptr, 0});
            addRun(*run);
            end = run->x + run->width;
        }
    }

    struct Origin {
        const TextOperation* run; ///< null for the blank between what stands apart
        qsizetype index;
    };

    const QString& letters() const { return letters_; }
    const Origin& origin(qsizetype index) const {
        return origins_[static_cast<std::size_t>(index)];
    }

private:
    bool isBlankBefore(const TextOperation& run, double end) const {
        return !letters_.isEmpty() && page::isApart(run, end) && !letters_.endsWith(u' ') &&
               !run.text.startsWith(u' ');
    }

    void addRun(const TextOperation& run) {
        const bool hasSigns = page::signFace(run.font.face) != page::SignFace::None;
        for (qsizetype index = 0; index < run.text.size() && letters_.size() < mostText_; ++index) {
            const QChar character = run.text[index];
            if (!hasSigns)
                add(folded(character, ignoreAccents_), {&run, index});
            else
                for (const QChar sign : page::readableSigns(run.font.face, character))
                    add(folded(sign, ignoreAccents_), {&run, index});
        }
    }

    void add(QChar letter, Origin origin) {
        letters_ += letter;
        origins_.push_back(origin);
    }

    const bool ignoreAccents_;
    const qsizetype mostText_;
    QString letters_;
    std::vector<Origin> origins_;
};

/// Characters of a line from `from` up to, not including, `to`.
struct Span {
    qsizetype from;
    qsizetype to;
};

/// Where the words stand, from left to right; what overlaps is one.
std::vector<Span> spans(const QString& letters, const std::vector<QString>& words,
                        std::size_t most) {
    std::vector<Span> all;
    for (const QString& word : words) {
        const std::size_t before = all.size();
        for (qsizetype at = letters.indexOf(word); at >= 0 && all.size() < before + most;
             at = letters.indexOf(word, at + word.size()))
            all.push_back({at, at + word.size()});
    }
    std::sort(all.begin(), all.end(), [](const Span& a, const Span& b) { return a.from < b.from; });
    std::vector<Span> merged;
    for (const Span& span : all) {
        if (!merged.empty() && span.from < merged.back().to)
            merged.back().to = std::max(merged.back().to, span.to);
        else if (merged.size() < most)
            merged.push_back(span);
        else
            break;
    }
    return merged;
}

/// Measures the characters of a line, which must be asked for from left to right: each run is then
/// measured once, however many words stand in it.
class Ruler {
public:
    explicit Ruler(const TextMetrics& metrics) : metrics_(metrics) {}

    QRectF area(const FoldedLine& line, const Span& span) {
        QRectF area;
        for (qsizetype at = span.from; at < span.to;) {
            const FoldedLine::Origin first = line.origin(at);
            qsizetype behind = first.index;
            for (; at < span.to && line.origin(at).run == first.run; ++at)
                behind = line.origin(at).index + 1;
            if (!first.run)
                continue;
            const double left = advanceTo(*first.run, first.index);
            const double right = advanceTo(*first.run, behind);
            area |= QRectF(left, first.run->y, right - left, height_);
        }
        return area;
    }

private:
    /// Twips from the surface's left edge to the left of a character.
    double advanceTo(const TextOperation& run, qsizetype index) {
        if (run_ != &run) {
            run_ = &run;
            index_ = 0;
            x_ = run.x;
            height_ = metrics_.height(run.font);
        }
        if (index > index_) {
            x_ += metrics_.width(run.font, QStringView(run.text).sliced(index_, index - index_));
            index_ = index;
        }
        return x_;
    }

    const TextMetrics& metrics_;
    const TextOperation* run_ = nullptr;
    qsizetype index_ = 0;
    double x_ = 0;
    double height_ = 0;
};

} // namespace

std::vector<Occurrence> occurrences(const page::Recording& recording, page::SurfaceId surface,
                                    const TextMetrics& metrics, const FoundWords& sought) {
    std::vector<Occurrence> found;
    const std::vector<QString> words = foldedWords(sought);
    if (words.empty())
        return found;
    const page::TextLines text(recording, surface,
                               [&](const auto& link) { return page::captionLines(link, metrics); });
    qsizetype left = kMaxSearchedText;
    Ruler ruler(metrics);
    for (const TextLine& line : text.lines()) {
        if (left <= 0 || found.size() >= kMaxOccurrences)
            break;
        const FoldedLine folded(line, sought.ignoreAccents, left);
        left -= folded.letters().size();
        for (const Span& span : spans(folded.letters(), words, kMaxOccurrences - found.size()))
            if (const QRectF area = ruler.area(folded, span); !area.isEmpty())
                found.push_back({line.top, area});
    }
    return found;
}

} // namespace viewer
