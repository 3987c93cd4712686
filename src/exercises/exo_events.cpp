// The handlers of the test's window: what its controls, the keyboard and the window system tell it.

#include "exercises/answer_box.h"
#include "exercises/answer_panel.h"
#include "exercises/cjuste.h"
#include "exercises/exo.h"
#include "exercises/placement.h"
#include "exercises/strip.h"
#include "exercises/summary.h"
#include "look/button.h"
#include "look/page_panel.h"
#include "look/picture_box.h"
#include "page/twips.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QWheelEvent>

namespace exercises {

namespace {

/// What a wheel reports for one notch, and how far the question then moves.
constexpr double kWheelNotch = 120;
constexpr double kLinesPerNotch = 3;

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

void Exo::connectHandlers() {
    using look::Button;
    struct Row {
        Button* button;
        void (Exo::*click)();
    };
    // The arrows, too, act when the button is let go over them.
    for (const Row& row :
         {Row{Command3_, &Exo::Command3_MouseUp}, Row{command4_, &Exo::command4_MouseUp},
          Row{command5_, &Exo::command5_Click}, Row{command6_, &Exo::command6_Click},
          Row{Image2_, &Exo::Image2_Click}, Row{Command7_, &Exo::Command7_Click},
          Row{bilan_, &Exo::showSummary}, Row{Command1_, &Exo::Command1_Click}})
        if (row.button)
            connect(row.button, &QPushButton::clicked, this,
                    [this, click = row.click] { (this->*click)(); });
    Picture1_->onChosen([this](double y) { Picture1_MouseUp(y); });
    connectSummary();
    answers_->onLink([this](const QString& tag) { Labelien_Click(tag); });
    for (QWidget* control : findChildren<QWidget*>())
        control->installEventFilter(this);
}

void Exo::connectSummary() {
    summary_->onWay({
        .question =
            [this](int question) { session_->chooseQuestion(static_cast<std::int16_t>(question)); },
        .page = [this](const QString& tag) { Labelien_Click(tag); },
        .wholeTest = [this] { session_->retakeTest(); },
        .wrongAnswers = [this] { session_->retakeWrong(); },
    });
}

void Exo::Command3_MouseUp() {
    leaveQuestion([this] { session_->previous(); });
}

void Exo::command4_MouseUp() {
    leaveQuestion([this] { session_->next(); });
}

void Exo::command5_Click() {
    leaveQuestion([this] { session_->validate(); });
}

void Exo::command6_Click() {
    session_->showScore();
}

void Exo::Picture1_MouseUp(double y) {
    leaveQuestion([this, y] { session_->choose(y, Picture1_->height()); });
}

void Exo::Image2_Click() {
    close();
}

void Exo::Command7_Click() {
    const auto placeFor = [this](QSize size) {
        const auto twips = [](int pixels) { return pixels * page::kTwipsPerPixel; };
        const CalculatorPlace place =
            calculatorPlace({twips(mainWindow_.x()), twips(mainWindow_.y())},
                            twips(mainWindow_.width()), twips(size.width()));
        return QPoint(qRound(place.left / page::kTwipsPerPixel),
                      qRound(place.top / page::kTwipsPerPixel));
    };
    parts_.calculator.openAfresh(placeFor);
}

/// `Labelien_Click`, and that of `Image1` and `Icovideo`.
void Exo::Labelien_Click(const QString& tag) {
    session_->leaveFor(tag.toStdU16String());
    leaving_ = true;
    close();
}

void Exo::Command1_Click() {
    if (source_->isHidden()) {
        hideSummary();
        makeWritable();
        showSource();
        frame1_->hide();
        source_->show();
        source_->setFocus();
        return;
    }
    if (!edit_->commit(typedSource()))
        return;
    source_->hide();
    frame1_->show();
    session_->majquest();
}

/// Shows the field "question" of the current record to the author.
void Exo::showSource() {
    source_->setPlainText(records_.record().question());
    source_->document()->setModified(false);
}

/// What the author has made of the question, absent when nothing was typed. Blanks that do not
/// break are kept.
std::optional<QString> Exo::typedSource() const {
    if (!source_ || source_->isHidden() || !source_->document()->isModified())
        return std::nullopt;
    QString typed = source_->document()->toRawText();
    for (const QChar separator : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        typed.replace(separator, QStringLiteral("\r\n"));
    return typed;
}

void Exo::leaveQuestion(const std::function<void()>& go) {
    if (edit_ && !edit_->commit(typedSource()))
        return;
    if (source_)
        source_->document()->setModified(false);
    go();
    if (source_ && !source_->isHidden())
        showSource();
}

/// Puts what the author has typed into the database, or where it is not lost; false when the window
/// is to stay.
bool Exo::keepTyped() {
    const auto typed = typedSource();
    if (!typed)
        return true;
    const auto outcome = edit_->commitForClosing(typed);
    if (outcome == QuestionEdit::Closing::Abandoned)
        QGuiApplication::clipboard()->setText(*typed);
    if (outcome != QuestionEdit::Closing::Refused)
        source_->document()->setModified(false);
    return outcome != QuestionEdit::Closing::Refused;
}

/// Whether the window may close: nothing typed is lost, and the test is ended.
bool Exo::mayClose() {
    if (leaving_)
        return true;
    if (asking_)
        return false;
    const QScopedValueRollback<bool> asking(asking_, true);
    return keepTyped() && session_->close();
}

void Exo::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayClose());
    if (!event->isAccepted())
        return;
    leaving_ = true;
    stopReading();
    if (popup_)
        popup_->close();
    loop_.quit();
}

/// Clicked on, the test would cover the calculator, which is small and wanted beside it.
void Exo::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        parts_.calculator.raise();
}

void Exo::keyPressEvent(QKeyEvent* event) {
    const bool inQuestion = !frame1_->isHidden();
    switch (event->key()) {
    case Qt::Key_L:
        if (event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier))
            return readAloud();
        return QWidget::keyPressEvent(event);
    case Qt::Key_Escape:
        if (!stopReading())
            close();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // From the question, its choices and its answer box; a button takes the key itself. Outside
        // the box a key struck by chance does not give an empty answer, which would be wrong.
        if (inQuestion && (answers_->Text1().hasFocus() || answers_->hasAnswer()))
            command5_Click();
        return;
    case Qt::Key_Up:
        return frame1_->scrollLines(-1);
    case Qt::Key_Down:
        return frame1_->scrollLines(1);
    case Qt::Key_PageUp:
        return frame1_->scrollScreens(-1);
    case Qt::Key_PageDown:
        return frame1_->scrollScreens(1);
    case Qt::Key_Home:
        return frame1_->scrollToTop();
    case Qt::Key_End:
        return frame1_->scrollToBottom();
    default:
        QWidget::keyPressEvent(event);
    }
}

void Exo::wheelEvent(QWheelEvent* event) {
    // Touchpads report fractions of a notch.
    frame1_->scrollLines(-event->angleDelta().y() / kWheelNotch * kLinesPerNotch);
    event->accept();
}

bool Exo::eventFilter(QObject* watched, QEvent* event) {
    auto* const control = static_cast<QWidget*>(watched); // only controls are watched
    if (event->type() == QEvent::KeyPress && control != source_) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const bool acts =
            isEnter(key) || (key.key() == Qt::Key_Space && control != &answers_->Text1());
        // A key held down acts once: the next question is not answered by the same stroke.
        if (key.isAutoRepeat() && acts)
            return true;
    }
    if (event->type() == QEvent::FocusIn && Picture2_->isAncestorOf(control))
        frame1_->reveal(control->geometry());
    return QWidget::eventFilter(watched, event);
}

} // namespace exercises
