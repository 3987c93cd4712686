#include "viewer/video_menu.h"

#include "page/numbers.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

#include <span>

namespace viewer {

namespace {

constexpr qsizetype kShortestTitle = 3;

} // namespace

QStringList videoMenuCaptions(const QString& code) {
    if (code != u"MENU01")
        return {};
    return {QStringLiteral("Comment remplir un ballon avec un gaz coloré ?"),
            QStringLiteral("Diffusion d'un gaz")};
}

std::optional<QString> videoMenuTarget(const QString& caption, const coursedata::Recordset* cours,
                                       const QString& summaryCode) {
    if (caption.size() < kShortestTitle)
        return summaryCode;
    std::optional<QString> target;
    if (cours)
        cours->forEach({QStringLiteral("Numeropage"), QStringLiteral("titre")},
                       [&](int, std::span<const coursedata::FieldValue> fields) {
                           if (target || coursedata::shownText(fields[1]) != caption)
                               return;
                           if (const auto page = text::toInt32(coursedata::fieldNumber(fields[0])))
                               target = pageCode(*page);
                       });
    return target;
}

} // namespace viewer
