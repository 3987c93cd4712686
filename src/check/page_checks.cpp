#include "check/page_checks.h"

#include <algorithm>
#include <map>

namespace check {

namespace {

/// Pages told of one by one; a range of millions is one slip of the pen.
constexpr int kMostNumbersTold = 5;

std::string labelled(const Page& page) {
    const auto number = page.record.number("Numeropage");
    return number ? "la page " + std::to_string(*number) : std::string("une page sans numéro");
}

/// Tells every record but the first of those that have the same number in a field.
template <class Records, class Tell>
void forEachDuplicate(const Records& records, std::string_view field, Tell tell) {
    std::map<std::int32_t, const Record*> first;
    for (const auto& each : records) {
        const Record* record;
        if constexpr (std::is_same_v<std::decay_t<decltype(each)>, Record>)
            record = &each;
        else
            record = &each.record;
        const auto number = record->number(field);
        if (!number)
            continue;
        const auto [before, isNew] = first.emplace(*number, record);
        if (!isNew)
            tell(*record, *number, *before->second);
    }
}

std::string whereIs(const Record& record, std::string_view field) {
    const coursetool::Place& place = record.place(field);
    const std::string file = place.file.substr(place.file.find_last_of('/') + 1);
    return record.name().empty() ? file + ", ligne " + std::to_string(place.line) : record.name();
}

/// The range of a page that can be printed; nothing for one that cannot.
struct Range {
    std::int32_t first;
    std::int32_t last;
};
std::optional<Range> printRange(const Page& page) {
    if (!page.record.flag("imprimable"))
        return std::nullopt;
    return Range{page.record.number("debutimp").value_or(0),
                 page.record.number("finimp").value_or(0)};
}

/// "12, 13 et 14"; beyond a few, how many more there are.
std::string listed(const std::vector<std::int32_t>& numbers) {
    std::string words;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i == kMostNumbersTold)
            return words + " et " + std::to_string(numbers.size() - i) + " autres";
        words += (i == 0                    ? ""
                  : i + 1 == numbers.size() ? " et "
                                            : ", ") +
                 std::to_string(numbers[i]);
    }
    return words;
}

/// Ranges beyond this length are not walked through.
constexpr std::int64_t kLongestRange = 100'000;

bool isWalkable(const Range& range) {
    return range.first <= range.last && std::int64_t(range.last) - range.first < kLongestRange;
}

} // namespace

void duplicateNumber(const Course& course, Findings& findings) {
    const auto tell = [&](const char* field) {
        return [&findings, field](const Record& record, std::int32_t number, const Record& other) {
            findings.add(record, field,
                         std::string(field) + " = " + std::to_string(number) + " est déjà pris (" +
                             whereIs(other, field) + ")");
        };
    };
    forEachDuplicate(course.pages, "Numeropage", tell("Numeropage"));
    forEachDuplicate(course.tests, "Chapitre", tell("Chapitre"));
    forEachDuplicate(course.questions, "REFERENCE", tell("REFERENCE"));
}

void duplicateOrder(const Course& course, Findings& findings) {
    forEachDuplicate(course.pages, "Index",
                     [&](const Record& record, std::int32_t number, const Record& other) {
                         findings.add(record, "Index",
                                      "Index = " + std::to_string(number) + " est déjà pris (" +
                                          whereIs(other, "Index") +
                                          ") : une des deux pages n’est plus dans la suite");
                     });
}

void gapInOrder(const Course& course, Findings& findings) {
    std::map<std::int32_t, const Page*> order;
    for (const Page& page : course.pages)
        if (const auto index = page.record.number("Index"))
            order[*index] = &page;
    for (auto page = order.begin(); page != order.end(); ++page) {
        const auto next = std::next(page);
        if (next != order.end() && next->first != page->first + 1)
            findings.add(next->second->record, "Index",
                         "l’ordre de lecture saute de " + std::to_string(page->first) + " à " +
                             std::to_string(next->first));
    }
}

void neighbourMissing(const Course& course, Findings& findings) {
    const auto tell = [&](const Page& page, const char* flag, const char* button, int step) {
        const auto index = page.record.number("Index");
        if (page.record.flag(flag) && !(index && course.pageInOrder(*index + step)))
            findings.add(page.record, flag,
                         std::string("la page ") + button + " n’existe pas : aucune n’a Index = " +
                             std::to_string(index.value_or(0) + step));
    };
    for (const Page& page : course.pages) {
        tell(page, "suite", "suivante", 1);
        tell(page, "precedent", "précédente", -1);
    }
}

void numberBeyondCodes(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const auto number = page.record.number("Numeropage");
        if (number && (*number < 1 || *number > kHighestCode))
            findings.add(page.record, "Numeropage",
                         "aucun code ne mène à la page " + std::to_string(*number) +
                             " : les numéros vont de 1 à " + std::to_string(kHighestCode));
    }
}

void noFirstPage(const Course& course, Findings& findings) {
    if (!course.pages.empty() && !course.page(1))
        findings.add({course.pagesPlace, 0, 0},
                     "aucune page n’a le numéro 1, celui de l’accueil : c’est " +
                         labelled(course.pages.front()) + " qui se montrera");
}

void emptyPrintRange(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const auto range = printRange(page);
        const auto number = page.record.number("Numeropage");
        if (!range)
            continue;
        if (range->first > range->last)
            findings.add(page.record, "debutimp",
                         "debutimp dépasse finimp : le bouton Imprimer n’imprime rien");
        else if (number && (*number < range->first || *number > range->last))
            findings.add(page.record, "debutimp",
                         "le bouton Imprimer donne les pages " + std::to_string(range->first) +
                             " à " + std::to_string(range->last) + ", sans celle-ci, la " +
                             std::to_string(*number));
    }
}

void printRangeWithHoles(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const auto range = printRange(page);
        if (!range || range->first > range->last)
            continue;
        if (!isWalkable(*range)) {
            findings.add(page.record, "finimp", "plus de 100 000 pages à imprimer");
            continue;
        }
        std::vector<std::int32_t> missing;
        for (std::int32_t number = range->first; number <= range->last; ++number)
            if (!course.page(number))
                missing.push_back(number);
        if (!missing.empty())
            findings.add(page.record, "debutimp",
                         "à imprimer de " + std::to_string(range->first) + " à " +
                             std::to_string(range->last) + " : il n’y a pas de page " +
                             listed(missing) + ", la première du cours prendra sa place");
    }
}

void printRangeCrossesUnprintable(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const auto range = printRange(page);
        if (!range || !isWalkable(*range))
            continue;
        std::vector<std::int32_t> crossed;
        for (std::int32_t number = range->first; number <= range->last; ++number) {
            const Page* other = course.page(number);
            if (other && !other->record.flag("imprimable"))
                crossed.push_back(number);
        }
        if (!crossed.empty())
            findings.add(page.record, "debutimp",
                         "à imprimer de " + std::to_string(range->first) + " à " +
                             std::to_string(range->last) + ", dont " + listed(crossed) +
                             ", où imprimable est faux");
    }
}

void pageWithoutTitle(const Course& course, Findings& findings) {
    for (const Page& page : course.pages)
        if (page.record.text("titre").value_or(QString()).trimmed().isEmpty())
            findings.add(page.record, "titre",
                         "la page n’a pas de titre : l’historique et la recherche la montreront "
                         "sans nom");
}

} // namespace check
