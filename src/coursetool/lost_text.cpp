#include "coursetool/lost_text.h"

#include "page/ink_area.h"
#include "page/sheet.h"

#include <QStringList>

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
    if (place.name.empty())
        return report.warning({place.file, line}, sentence);
    report.warning({place.file}, place.name + ", ligne " + std::to_string(line) + " : " + sentence);
}

/// The words that stand below the foot of the text column, a run each.
QStringList wordsBelow(const OffscreenPage& page) {
    page::Sheet sheet{};
    page::putOnSheet(page.recording(), page.metrics(), sheet);
    const double foot = page.columnHeight();
    QStringList words;
    for (const page::DrawnOperation& operation : sheet.operations)
        if (const auto* text = std::get_if<page::TextOperation>(&operation))
            if (text->surface == page::SurfaceId::PictureTexte && page::isBelow(*text, foot))
                words.append(text->text);
    return words;
}

} // namespace

void reportUnended(const QString& source, const SourcePlace& place, Report& report) {
    const qsizetype lastEnd = source.lastIndexOf(kLineEnd);
    const qsizetype start = lastEnd < 0 ? 0 : lastEnd + kLineEnd.size();
    const QString rest = source.sliced(start);
    if (rest.trimmed().isEmpty())
        return;
    warn(place, lineAt(source, start),
         quoted(rest) + " ne compte pas : il manque une fin de ligne (CR LF) après", report);
}

void reportLost(OffscreenPage& page, const SourcePlace& place, Report& report) {
    const QString& source = page.code().text();
    if (const QStringList words = wordsBelow(page); !words.isEmpty()) {
        const qsizetype found = source.lastIndexOf(words.first());
        warn(place, lineAt(source, qMax(qsizetype(0), found)),
             quoted(words.join(u' ')) +
                 " ne se voit pas : la page s’arrête au-dessus ; finir la ligne par « ¶ »",
             report);
    }
    reportUnended(source, place, report);
}

} // namespace coursetool
