// Questions of a test: the drawing with its controls, the words beside those, the typed answer.

#include "drawings.h"
#include "exercises/answer_check.h"
#include "exercises/field_texts.h"
#include "formats/all.h"
#include "markup/any_page.h"
#include "viewer/page_sheet.h"

namespace fuzz {

namespace {

void readBeside(const markup::DrawnPage& drawn) {
    for (const auto* choices : {&drawn.fields.Option1, &drawn.fields.Check1})
        for (int i = 0; i <= markup::AnswerFields::kLastChoice; ++i)
            if (const auto* field = choices->slot(i); field && field->visible)
                exercises::textRightOf(field->place, drawn.fields, drawn.recording);
    if (drawn.fields.Text1.visible)
        exercises::textLeftOf(drawn.fields.Text1.place, drawn.fields, drawn.recording);
}

void readOne(Input input) {
    static test_support::FakePictures pictures;
    pictures.anyName = true;
    const QString source = pageText(textOf(input));
    markup::DrawingState state;
    const auto drawn =
        markup::drawPage({source, markup::DrawnAs::Question}, {state, pictures, fonts()});
    readBeside(drawn);
    playEverywhere(drawn.recording, viewer::questionSheet(drawn, fonts(), {}));
    // The first line as the solution, all of it as what a pupil types.
    const std::u16string typed = source.toStdU16String();
    const std::u16string solution = source.section(u'\r', 0, 0).toStdU16String();
    require(exercises::foldedAnswer(typed).size() <= typed.size(), "a folded answer is no longer");
    exercises::castexte(solution, typed);
}

} // namespace

const Format kQuestion{
    "question",
    readOne,
    {{"docs/gallery", ".question"}, {"fuzz/corpus/question", ""}},
    pageWords({"##EXOOP\n", "##EXOCK\n", "##EXOTX\n", "¶", "\n", "-", "_", "'", "é", "5", "-1",
               "32768", "1e9", "œ", " s", "es"}),
    20'000,
};

} // namespace fuzz
