// The test's window as its session, and a question while it is drawn, see it.

#include "exercises/answer_box.h"
#include "exercises/answer_panel.h"
#include "exercises/cjuste.h"
#include "exercises/exo.h"
#include "exercises/progress_strip.h"
#include "exercises/strip.h"
#include "exercises/summary.h"
#include "exercises/summary_text.h"
#include "exercises/verdict_line.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/notice.h"
#include "look/page_panel.h"
#include "look/picture_box.h"
#include "look/tool_tip.h"
#include "page/sheet.h"
#include "page/surface.h"
#include "page/twips.h"

#include <QAccessible>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWindow>

#include <algorithm>

namespace exercises {

namespace {

/// Space below a control that is the lowest thing of a question.
constexpr int kFootPx = 4;

void tellNewName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name)
        widget.setAccessibleName(name); // this tells screen readers too
}

/// Height, in twips, down to the lowest text, line or picture of the question area. A ground is
/// drawn for what stands on it and does not count; controls are counted as widgets.
class DrawnFoot
    : page::PassOver<page::FillOperation, page::LinkOperation, page::MenuOperation,
                     page::FieldOperation, page::VideoOperation, page::SwitchOperation,
                     page::ClearOperation, page::CaptionOperation, page::FailedOperation> {
public:
    explicit DrawnFoot(const page::TextMetrics& metrics) : metrics_(metrics) {}

    double of(const page::Recording& recording) {
        for (const page::Operation& operation : recording.operations())
            std::visit(*this, operation);
        return foot_;
    }

    using PassOver::operator();
    void operator()(const page::TextOperation& text) {
        lower(text.surface, text.y + metrics_.height(text.font));
    }
    void operator()(const page::LineOperation& line) {
        lower(line.surface, std::max(line.y1, line.y2));
    }
    void operator()(const page::PictureOperation& picture) {
        lower(picture.surface, picture.y + picture.height);
    }

private:
    void lower(page::SurfaceId surface, double place) {
        if (surface == page::SurfaceId::Picture2)
            foot_ = std::max(foot_, place);
    }

    const page::TextMetrics& metrics_;
    double foot_ = 0;
};

} // namespace

void Exo::setTitle(const std::u16string& title) {
    const QString words = QString::fromStdU16String(title).simplified();
    const QString shown =
        Label2_->fontMetrics().elidedText(words, Qt::ElideRight, Label2_->width());
    Label2_->setText(shown);
    look::setToolTip(*Label2_, shown == words ? QString() : words);
    Label2_->setAccessibleName(words);
}

void Exo::setCaption(const std::u16string& caption) {
    caption_ = QString::fromStdU16String(caption);
    noa_->setText(caption_);
}

void Exo::setVerdict(const std::optional<Verdict>& verdict) {
    verdict_->setVerdict(verdict);
    if (verdict)
        look::announce(*this, verdict_->accessibleName());
}

/// A button that goes leaves the keyboard to the question, not to some other button: the same key
/// struck again must not press that one.
void Exo::setButtonVisible(look::Button& button, bool visible) {
    if (!visible && focusWidget() == &button)
        Picture2_->setFocus();
    button.setVisible(visible);
}

/// Beside the notice that there are none, nothing offers to go to one or to answer it.
bool Exo::hasQuestions() const {
    return notice_->isHidden();
}

void Exo::setPreviousVisible(bool visible) {
    setButtonVisible(*Command3_, visible && hasQuestions());
}

void Exo::setNextVisible(bool visible) {
    setButtonVisible(*command4_, visible && hasQuestions());
}

void Exo::setValidateVisible(bool visible) {
    setButtonVisible(*command5_, visible && hasQuestions());
}

void Exo::setScoreVisible(bool visible) {
    setButtonVisible(*command6_, visible);
}

void Exo::placeMarker(int question, int count) {
    const auto top = markerTop(question, count, Picture1_->height(), Marker::kSize.height());
    if (!top)
        return;
    const int left = (Picture1_->width() - Marker::kSize.width()) / 2;
    Image4_->move(Picture1_->pos() + QPoint(left, qRound(*top)));
    if (!markerPlaced_)
        Image4_->show();
    markerPlaced_ = true;
    Picture1_->refresh();
}

void Exo::setMarkerVisible(bool visible) {
    Image4_->setVisible(visible && markerPlaced_);
}

void Exo::setFace(int face) {
    Image4_->setFace(face);
}

void Exo::offerSummary(bool offered) {
    setButtonVisible(*bilan_, offered);
}

void Exo::showSummary() {
    if (source_ && !source_->isHidden()) // an author is at work on the question
        return;
    stopReading();
    // What these drawings leave behind is nothing to the questions and pages to come.
    markup::DrawingState drawing = parts_.drawing;
    std::vector<SummaryEntry> entries;
    for (const WrongAnswer& answer : session_->wrongAnswers())
        entries.push_back(summaryEntry(answer, {drawing, parts_.pictures, parts_.fonts}));
    summary_->show(summaryHtml(entries, counts(parts_.test)), !entries.empty());
    frame1_->hide();
    bilan_->hide();
    verdict_->setVerdict(std::nullopt);
    noa_->setText(QStringLiteral("Bilan du test"));
    tellNewName(*noa_, noa_->text());
    summary_->takeFocus();
}

void Exo::hideSummary() {
    if (summary_->isHidden())
        return;
    summary_->hide();
    frame1_->show();
    noa_->setText(caption_);
}

void Exo::repaintStrip() {
    Picture1_->refresh();
}

void Exo::focusStrip() {
    Picture1_->setFocus();
}

void Exo::misanet() {
    stopReading();
    hideSummary();
    // Hidden or disabled, a control would hand the keyboard to some other one.
    const QWidget* const focus = focusWidget();
    questionHadFocus_ = focus && (focus == this || focus == Picture2_ ||
                                  Picture2_->isAncestorOf(focus) || focus == command5_);
    if (questionHadFocus_)
        setFocus();
    question_ = {};
    Picture2_->empty();
    answers_->reset();
}

void Exo::drawQuestion(const std::u16string& source) {
    markup::drawPage({QString::fromStdU16String(source), markup::DrawnAs::Question},
                     {parts_.drawing, parts_.pictures, parts_.fonts, this}, question_);
    answers_->place();
    Picture2_->showDrawing();
    fitQuestion();
    putInTabOrder();
    nameQuestion();
    look::announce(*this, questionName());
    if (focusWidget() == this)
        focusQuestion();
}

/// Makes the area as tall as the view, so that a coloured ground fills it, or as all that stands on
/// it: the renderer only knows where the pen ended.
void Exo::fitQuestion() {
    const double drawn = DrawnFoot(parts_.fonts).of(question_.recording) / page::kTwipsPerPixel;
    const int foot = answers_->footPx();
    const double view = frame1_->framekx().height();
    const double tallest = std::max({view, question_.heightPx(page::SurfaceId::Picture2), drawn,
                                     foot > 0 ? static_cast<double>(foot + kFootPx) : 0});
    Picture2_->setPageHeightPx(std::min(tallest, page::kMaxSurfaceHeightPx));
    frame1_->fitPage();
}

void Exo::putInTabOrder() {
    QWidget* last = Picture2_;
    const auto append = [&last](QWidget* next) {
        setTabOrder(last, next);
        last = next;
    };
    for (QWidget* control : answers_->inReadingOrder())
        append(control);
    if (source_)
        append(source_);
    for (QWidget* control : std::initializer_list<QWidget*>{
             Command3_, command5_, bilan_, command6_, command4_, Picture1_, Command7_, Image2_})
        append(control);
    if (Command1_)
        append(Command1_);
}

/// The answer box has the keyboard at once; otherwise the question, to be read, and the Tab key
/// leads to its choices.
void Exo::focusQuestion() {
    AnswerBox& Text1 = answers_->Text1();
    if (!Text1.isHidden() && !isAnswered(parts_.test, parts_.test.CurrentQuestion))
        Text1.setFocus();
    else if (questionHadFocus_)
        Picture2_->setFocus();
}

/// "Question 3 / 10".
QString Exo::questionName() const {
    return noa_->text().chopped(noa_->text().endsWith(u':') ? 1 : 0).trimmed();
}

/// What screen readers call the question: its number, and how it was answered.
void Exo::nameQuestion() {
    const int question = parts_.test.CurrentQuestion;
    QString name = questionName();
    if (isAnswered(parts_.test, question))
        name += isAnsweredWrong(parts_.test, question) ? QStringLiteral(", réponse fausse")
                                                       : QStringLiteral(", réponse juste");
    tellNewName(*Picture2_, name);
    tellNewName(*noa_, name);
}

void Exo::setBusy(bool busy) {
    // Before the window is on the screen no pointer can be over it.
    if (busy && windowHandle() && windowHandle()->isExposed())
        setCursor(Qt::WaitCursor);
    else if (!busy)
        unsetCursor();
}

/// What a question draws elsewhere, nobody sees.
void Exo::refresh(page::SurfaceId surface) {
    if (surface != page::SurfaceId::Picture2)
        return;
    Picture2_->showDrawing();
    Picture2_->repaint();
}

void Exo::tell(const Message& message) {
    parts_.messageBoxes.ask({.title = QString::fromStdU16String(message.title),
                             .text = QString::fromStdU16String(message.text)});
}

bool Exo::ask(const Message& question) {
    return parts_.messageBoxes.ask({.title = QString::fromStdU16String(question.title),
                                    .text = QString::fromStdU16String(question.text),
                                    .icon = platform::Message::Icon::Question,
                                    .buttons = platform::Message::Buttons::YesNo}) ==
           platform::Answer::Yes;
}

void Exo::showRightAnswer() {
    nameQuestion();
    Cjuste popup(this);
    popup.setInterval(blinkInterval_);
    popup_ = &popup;
    look::announce(*this, popup.windowTitle());
    popup.exec();
}

} // namespace exercises
