#include "coursetool/lost_text.h"

#include "page/ink_area.h"
#include "page/link_view.h"
#include "viewer/page_sheet.h"

#include <QStringList>

#include <algorithm>

namespace coursetool {

namespace {

constexpr QStringView kLineEnd = u"\r\n";

/// As many characters as a terminal shows on a line beside the rest of the sentence.
constexpr qsizetype kQuoted = 60;

std::string quoted(const QString& words) {
    QString shown = words.simplified();
    if (shown.size() > kQuoted)
        shown = shown.first(kQuoted - 1) + u'…';
    return inQuotes(shown.toStdString());
}

/// Line of a source, from 1, as an editor counts them.
int lineAt(QStringView source, qsizetype position) {
    return 1 + static_cast<int>(source.first(position).count(u'\n'));
}

void warn(const SourcePlace& place, int line, const std::string& sentence, Report& report) {
    if (!place.lines.empty())
        line = place.lines[std::min(static_cast<std::size_t>(line), place.lines.size()) - 1];
    if (place.name.empty())
        return report.warning({place.file, line}, sentence);
    report.warning({place.file}, place.name + ", ligne " + std::to_string(line) + " : " + sentence);
}

/// Where a line of a drawn page begins in its source; lines are counted from 1 and end with CR LF.
qsizetype startOfLine(QStringView source, int line) {
    qsizetype start = 0;
    for (; line > 1; --line)
        start = source.indexOf(kLineEnd, start) + kLineEnd.size();
    return start;
}

/// The words that stand below the foot of the text column, a run each, and where the first is
/// written.
struct WordsBelow {
    QStringList words;
    int line = 0;
};

WordsBelow wordsBelow(const markup::DrawnPage& page, const page::TextMetrics& metrics) {
    const double foot = viewer::columnHeight(page, metrics);
    WordsBelow below;
    const auto look = [&](const page::TextOperation& text, std::size_t operation) {
        if (text.surface != page::SurfaceId::PictureTexte || !page::isBelow(text, foot))
            return;
        if (below.words.isEmpty())
            below.line = page.lineOf(operation);
        below.words.append(text.text);
    };
    const auto links = page::standingLinks(page.recording);
    const auto& operations = page.recording.operations();
    for (std::size_t i = 0; i < operations.size(); ++i)
        if (const auto* text = std::get_if<page::TextOperation>(&operations[i]))
            look(*text, i);
        else if (const auto* link = std::get_if<page::LinkOperation>(&operations[i]))
            if (std::find(links.begin(), links.end(), link) != links.end())
                for (const page::TextOperation& line : page::captionLines(*link, metrics))
                    look(line, i);
    return below;
}

void reportUnended(const QString& source, const SourcePlace& place, Report& report) {
    const qsizetype lastEnd = source.lastIndexOf(kLineEnd);
    if (lastEnd < 0 && place.name.empty() && !source.trimmed().isEmpty())
        return report.fault({place.file},
                            "rien n’en est dessiné : aucune ligne ne finit par CR LF, la seule fin "
                            "de ligne d’une page ; convertir le fichier (unix2dos)");
    const qsizetype start = lastEnd < 0 ? 0 : lastEnd + kLineEnd.size();
    const QString rest = source.sliced(start);
    if (rest.trimmed().isEmpty())
        return;
    warn(place, lineAt(source, start),
         quoted(rest) + " ne compte pas : il manque une fin de ligne (CR LF) après", report);
}

} // namespace

void reportLost(const markup::PageText& text, const markup::DrawnPage& page,
                const page::TextMetrics& metrics, const SourcePlace& place, Report& report) {
    const QString& source = text.source;
    if (text.as == markup::DrawnAs::Question)
        return reportUnended(source, place, report);
    if (const WordsBelow below = wordsBelow(page, metrics); !below.words.isEmpty())
        warn(place, lineAt(source, startOfLine(source, below.line)),
             quoted(below.words.join(u' ')) +
                 " ne se voit pas : la page s’arrête au-dessus ; finir la ligne par « ¶ »",
             report);
    reportUnended(source, place, report);
}

} // namespace coursetool
