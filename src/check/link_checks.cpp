#include "check/link_checks.h"

#include "check/directive_shape.h"
#include "check/walk.h"
#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/drawn_page.h"
#include "page/numbers.h"
#include "shell/launcher.h"
#include "text/rounding.h"
#include "viewer/page_code.h"
#include "viewer/video_menu.h"

#include <set>

namespace check {

namespace {

constexpr QStringView kPage = u"PAG";
constexpr QStringView kTest = u"EXO";
constexpr QStringView kProgram = u"EXE";
constexpr QStringView kOrderForm = u"BDC";

/// A code has an argument of three digits; what stands between prefix and argument does not count.
bool hasNumber(QStringView code) {
    return code.size() >= 6 && isNumeral(code.last(3).trimmed(), false, false);
}

/// The number in a link's target when it has this prefix and a readable number.
std::optional<int> numberIn(const Line& line, QStringView prefix) {
    const auto target = targetOf(line);
    if (!target || viewer::codePrefix(*target) != prefix || !hasNumber(*target))
        return std::nullopt;
    return static_cast<int>(viewer::codeArgument(*target));
}

/// The page that a link of a page or of a question leads to.
std::optional<int> pageIn(const Line& line) {
    if (const auto number = numberIn(line, kPage))
        return number;
    if (!line.what || line.what->argument != markup::Argument::PageLink)
        return std::nullopt;
    const auto parts = markup::splitAtLastSharp(line.directive, line.what->keyword.size());
    return parts ? text::toInt32(page::leadingNumber(parts->after)) : std::nullopt;
}

bool hasTest(const Course& course, int chapter) {
    return std::any_of(course.tests.begin(), course.tests.end(),
                       [&](const Record& test) { return test.number("Chapitre") == chapter; });
}

/// The code with its prefix in capitals and its number with three digits, when that makes it one.
std::optional<QString> repaired(QStringView target) {
    const QString code = target.trimmed().toString();
    const QString prefix = code.left(3).toUpper();
    const QString digits = code.mid(3).trimmed();
    if ((prefix != kPage && prefix != kTest && prefix != kProgram && prefix != kOrderForm) ||
        !isNumeral(digits, false, false) || digits.size() > 3)
        return std::nullopt;
    return prefix + digits.rightJustified(3, u'0');
}

} // namespace

void targetWithoutPage(const Course& course, Findings& findings) {
    forEachLine(course, [&](const Source& source, const Line& line) {
        const auto number = pageIn(line);
        if (number && !course.page(*number))
            findings.add(source, line.number,
                         quoted(line.text) + " mène à la page " + std::to_string(*number) +
                             ", qui n’existe pas : la première page se montrera à sa place");
    });
}

void unreadableTarget(const Source& source, const Line& line, Findings& findings) {
    const auto target = targetOf(line);
    if (!target)
        return;
    const QStringView prefix = viewer::codePrefix(*target);
    const bool known = prefix == kPage || prefix == kTest || prefix == kProgram;
    if ((known && hasNumber(*target)) || prefix == kOrderForm)
        return;
    std::string sentence =
        quoted(*target) + (known ? " : le numéro d’une cible a trois chiffres"
                                 : " n’est pas une cible : le lien ne fait rien ; écrire PAG, EXO "
                                   "ou EXE et trois chiffres, ou BDC000");
    const auto meant = repaired(*target);
    if (!meant)
        return findings.add(source, line.number, std::move(sentence));
    const QString before = line.text.chopped(target->size()).toString();
    findings.add(source, line, sentence + " ; vouliez-vous dire " + quoted(*meant) + " ?",
                 before + *meant, true);
}

void targetWithoutTest(const Course& course, Findings& findings) {
    forEachLine(course, [&](const Source& source, const Line& line) {
        const auto chapter = numberIn(line, kTest);
        if (chapter && !hasTest(course, *chapter))
            findings.add(source, line.number,
                         quoted(line.text) + " mène au test du chapitre " +
                             std::to_string(*chapter) + ", qui n’existe pas");
    });
}

void targetWithoutProgram(const Source& source, const Line& line, Findings& findings) {
    const auto code = numberIn(line, kProgram);
    if (code && shell::programOfCode(static_cast<std::int16_t>(*code)).isEmpty())
        findings.add(source, line.number,
                     quoted(line.text) + " ne démarre rien : aucun module ne répond au code " +
                         std::to_string(*code));
}

void tooManyLinks(const Source& source, Findings& findings) {
    if (source.kind() != Source::Kind::Page)
        return;
    constexpr int kMost = markup::LinkTable::kLast + 1;
    int texts = 0;
    int pictures = 0;
    for (const Line& line : source.lines()) {
        int* const count =
            line.runs(markup::textLink) ? &texts
            : line.runs(markup::pictureLink, markup::pictureLinkWithTooltip, markup::floatingMenu)
                ? &pictures
                : nullptr;
        if (!count)
            continue;
        if (++*count == kMost + 1)
            findings.add(source, line.number,
                         std::string("c’est le ") + std::to_string(*count) + "e lien " +
                             (count == &texts ? "de texte" : "d’image") +
                             " de la page : il prend la place du premier, une page en a " +
                             std::to_string(kMost) + " au plus");
        if (line.runs(markup::floatingMenu) && pictures - 1 > markup::LinkTable::kLastMenu)
            findings.add(source, line.number,
                         "ce menu reste vide : un menu doit être parmi les " +
                             std::to_string(markup::LinkTable::kLastMenu + 1) +
                             " premiers liens d’image de la page, celui-ci est le " +
                             std::to_string(pictures) + "e");
    }
}

void menuEntries(const Source& source, Findings& findings) {
    if (source.kind() != Source::Kind::Page)
        return;
    constexpr int kMost = markup::LinkTable::kLastEntry + 1;
    const Line* menu = nullptr;
    int entries = 0;
    const auto endMenu = [&] {
        if (menu && entries == 0)
            findings.add(source, menu->number,
                         "ce menu n’a aucun choix : des lignes ##ADMEN doivent le suivre");
    };
    for (const Line& line : source.lines()) {
        if (line.runs(markup::floatingMenu)) {
            endMenu();
            menu = &line;
            entries = 0;
        } else if (line.runs(markup::menuEntry)) {
            if (!menu)
                findings.add(source, line.number,
                             quoted(line.text) + " n’a pas de menu : ##LIERF doit venir avant");
            if (++entries == kMost + 1)
                findings.add(source, line.number,
                             "le onzième choix d’un menu prend la place du premier");
        }
    }
    endMenu();
}

void pageNobodyLeadsTo(const Course& course, Findings& findings) {
    std::set<const Page*> reached = {course.page(1)};
    std::set<QString> titles;
    for (const Page& page : course.pages) {
        const auto reach = [&](const Page* other) {
            if (other != &page)
                reached.insert(other);
        };
        for (const Line& line : page.source.lines()) {
            if (const auto number = pageIn(line))
                reach(course.page(*number));
            if (line.runs(markup::pageVideo))
                for (const QString& title : viewer::videoMenuCaptions(line.argument().toString()))
                    titles.insert(title);
        }
        reach(course.page(page.record.number("sommaire").value_or(1)));
        const auto index = page.record.number("Index");
        if (index && page.record.flag("suite"))
            reach(course.pageInOrder(*index + 1));
        if (index && page.record.flag("precedent"))
            reach(course.pageInOrder(*index - 1));
    }
    for (const Question& question : course.questions)
        for (const Source* source : {&question.source, &question.comment})
            for (const Line& line : source->lines())
                if (const auto number = pageIn(line))
                    reached.insert(course.page(*number));
    for (const Page& page : course.pages)
        // A page that another one hides by having its number is that rule's business.
        if (!reached.contains(&page) &&
            course.page(page.record.number("Numeropage").value_or(-1)) == &page &&
            !titles.contains(page.record.text("titre").value_or(QString())))
            findings.add(page.record, "Numeropage",
                         "rien ne mène à cette page : ni lien, ni sommaire, ni page voisine");
}

void summaryWithoutPage(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const auto number = page.record.number("sommaire");
        if (number && *number > 0 && !course.page(*number))
            findings.add(page.record, "sommaire",
                         "le sommaire est la page " + std::to_string(*number) +
                             ", qui n’existe pas : la première page se montrera à sa place");
    }
}

} // namespace check
