#include "check/question_checks.h"

#include "exercises/answer_check.h"
#include "markup/directives.h"
#include "markup/drawn_page.h"
#include "text/letters.h"

#include <algorithm>
#include <set>

namespace check {

namespace {

enum Type { kTicks = 1, kOptions = 2, kTyped = 3 };

constexpr int kMostChoices = markup::AnswerFields::kLastChoice + 1;
/// As many as a test keeps the states of; references of the next chapter begin after them.
constexpr int kMostQuestions = kQuestionsPerChapter;

struct FieldCounts {
    int options = 0;
    int ticks = 0;
    int typed = 0;
};

FieldCounts countFields(const Source& source) {
    FieldCounts counts;
    for (const Line& line : source.lines()) {
        counts.options += line.runs(markup::optionField);
        counts.ticks += line.runs(markup::checkField);
        counts.typed += line.runs(markup::textField);
    }
    return counts;
}

int typeOf(const Question& question) {
    return question.record.number("type").value_or(0);
}

bool isChoice(const Question& question) {
    return typeOf(question) == kTicks || typeOf(question) == kOptions;
}

QString solutionOf(const Question& question) {
    return question.record.text("solution").value_or(QString());
}

/// One digit a choice, as the choices are compared.
bool isChoiceCode(const QString& solution) {
    return solution.size() == kMostChoices &&
           std::all_of(solution.begin(), solution.end(),
                       [](QChar c) { return c == u'0' || c == u'1'; });
}

int choicesOf(const Question& question) {
    const FieldCounts counts = countFields(question.source);
    return typeOf(question) == kTicks ? counts.ticks : counts.options;
}

bool isAnswerOf(const QString& solution, const QString& typed) {
    return exercises::castexte(solution.toStdU16String(), typed.toStdU16String());
}

} // namespace

void unknownQuestionType(const Course& course, Findings& findings) {
    for (const Question& question : course.questions)
        if (!isChoice(question) && typeOf(question) != kTyped)
            findings.add(question.record, "type",
                         "le type d’une question est 1 (cases à cocher), 2 (un seul choix) ou 3 "
                         "(réponse tapée) : toute réponse sera fausse");
}

void fieldsOfAnotherType(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const FieldCounts counts = countFields(question.source);
        const int type = typeOf(question);
        const auto tell = [&](bool wrong, const char* sentence) {
            if (wrong)
                findings.add(question.record, "type", sentence);
        };
        tell(type == kTicks && counts.ticks == 0,
             "une question de type 1 place ses cases par ##EXOCK : il n’y en a aucune");
        tell(type == kOptions && counts.options == 0,
             "une question de type 2 place ses choix par ##EXOOP : il n’y en a aucun");
        tell(type == kTyped && counts.typed == 0,
             "une question de type 3 place sa zone de réponse par ##EXOTX : il n’y en a pas");
        tell((type == kTicks && counts.options + counts.typed > 0) ||
                 (type == kOptions && counts.ticks + counts.typed > 0) ||
                 (type == kTyped && counts.ticks + counts.options > 0),
             "la question a des champs d’un autre type, dont la réponse ne compte pas");
        tell(counts.typed > 1, "une question n’a qu’une zone de réponse : seul le dernier ##EXOTX "
                               "compte");
    }
}

void tooManyChoices(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        int options = 0;
        int ticks = 0;
        for (const Line& line : question.source.lines()) {
            int* const count = line.runs(markup::optionField)  ? &options
                               : line.runs(markup::checkField) ? &ticks
                                                               : nullptr;
            if (count && ++*count == kMostChoices + 1)
                findings.add(question.source, line.number,
                             "une question a " + std::to_string(kMostChoices) +
                                 " choix au plus : celui-ci ne se verra pas");
        }
    }
}

void malformedSolution(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const QString solution = solutionOf(question);
        if (isChoice(question) && !isChoiceCode(solution))
            findings.add(question.record, "solution",
                         "la solution " + quoted(solution) +
                             " ne vaut pour aucune réponse : écrire cinq chiffres, 1 pour chaque "
                             "choix juste, « 01000 »");
        else if (typeOf(question) == kTyped && solution.trimmed().isEmpty())
            findings.add(question.record, "solution",
                         "sans solution, seule la réponse vide est juste");
    }
}

void solutionWithoutField(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const QString solution = solutionOf(question);
        const int choices = choicesOf(question);
        if (isChoice(question) && choices > 0 && isChoiceCode(solution) &&
            solution.lastIndexOf(u'1') >= choices)
            findings.add(question.record, "solution",
                         "la solution " + quoted(solution) + " demande le choix " +
                             std::to_string(solution.lastIndexOf(u'1') + 1) +
                             ", la question en a " + std::to_string(choices));
    }
}

void solutionNobodyCanGive(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const QString solution = solutionOf(question);
        if (!isChoice(question) || !isChoiceCode(solution))
            continue;
        const auto right = solution.count(u'1');
        if (typeOf(question) == kOptions && right != 1)
            findings.add(question.record, "solution",
                         right == 0 ? "aucun choix n’est juste : seul qui ne répond rien a raison"
                                    : "un seul choix peut être pris, la solution en demande " +
                                          std::to_string(right));
        else if (typeOf(question) == kTicks && right == 0)
            findings.add(question.record, "solution",
                         "aucune case n’est juste : seul qui ne coche rien a raison");
    }
}

void answerThatNeverFits(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const QString solution = solutionOf(question);
        if (typeOf(question) != kTyped || solution.trimmed().isEmpty() ||
            isAnswerOf(solution, solution))
            continue;
        std::string sentence = "la réponse " + quoted(solution) +
                               " est comptée fausse : les accents et les signes d’une réponse "
                               "sont ôtés avant qu’on la compare";
        const QString folded =
            QString::fromStdU16String(exercises::foldedAnswer(solution.toStdU16String()));
        if (isAnswerOf(folded, solution))
            sentence += " ; écrire solution = \"" + folded.toStdString() + "\"";
        findings.add(question.record, "solution", std::move(sentence));
    }
}

void numberAsAnswer(const Course& course, Findings& findings) {
    for (const Question& question : course.questions) {
        const QString solution = solutionOf(question).trimmed();
        const QString word = solution.section(u' ', 0, 0);
        const bool isNumber = !word.isEmpty() && std::all_of(word.begin(), word.end(),
                                                             [](QChar c) { return c.isDigit(); });
        if (typeOf(question) != kTyped || !isNumber)
            continue;
        const QString other = QStringLiteral("0,") + solution;
        if (isAnswerOf(solution, other))
            findings.add(question.record, "solution",
                         "une réponse n’est pas comparée comme un nombre, sa virgule et son unité "
                         "ne comptent pas : " +
                             quoted(other) + " est juste pour " + quoted(solution) +
                             " ; demander les nombres par un choix");
    }
}

void questionCount(const Course& course, Findings& findings) {
    std::set<std::int32_t> references;
    for (const Question& question : course.questions)
        if (const auto reference = question.record.number("REFERENCE"))
            references.insert(*reference);
    for (const Record& test : course.tests) {
        const int chapter = test.number("Chapitre").value_or(0);
        const int count = test.number("Nbquest").value_or(0);
        const int base = chapter * kQuestionsPerChapter;
        const auto there = std::distance(references.lower_bound(base + 1),
                                         references.upper_bound(base + kMostQuestions));
        if (count < 1 || count > kMostQuestions) {
            findings.add(test, "Nbquest",
                         "un test a de 1 à " + std::to_string(kMostQuestions) + " questions, non " +
                             std::to_string(count));
            continue;
        }
        for (int number = 1; number <= count; ++number)
            if (!references.contains(base + number))
                findings.add(test, "Nbquest",
                             "Nbquest = " + std::to_string(count) + ", et la question " +
                                 std::to_string(base + number) +
                                 " n’existe pas : une autre se montrera à sa place");
        if (there > count)
            findings.add(test, "Nbquest",
                         "Nbquest = " + std::to_string(count) + ", le chapitre a " +
                             std::to_string(there) +
                             " questions : les dernières ne seront jamais "
                             "posées");
    }
}

void questionWithoutTest(const Course& course, Findings& findings) {
    std::set<std::int32_t> chapters;
    for (const Record& test : course.tests)
        chapters.insert(test.number("Chapitre").value_or(0));
    for (const Question& question : course.questions) {
        const auto reference = question.record.number("REFERENCE");
        if (!reference)
            continue;
        // The hundredth question has the number of the next chapter.
        const int chapter = (*reference - 1) / kQuestionsPerChapter;
        if (!chapters.contains(chapter))
            findings.add(question.record, "REFERENCE",
                         "aucun test n’a le chapitre " + std::to_string(chapter) +
                             " : une référence est le chapitre fois cent, plus le numéro de la "
                             "question");
    }
}

} // namespace check
