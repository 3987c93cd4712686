#include "exercises/answer_panel.h"

#include "exercises/answer_box.h"
#include "exercises/choice_buttons.h"
#include "exercises/field_texts.h"
#include "exercises/mark_picture.h"
#include "exercises/question_links.h"
#include "exercises/test_session.h"
#include "look/choice_sign.h"
#include "look/picture_box.h"
#include "page/twips.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cstdlib>

namespace exercises {

namespace {

using markup::AnswerFields;

constexpr int kTextHeightPx = 24;
/// The answer is as large as the page's text at its best.
constexpr int kTextPx = 16;
constexpr double kMarkTwips = 16 * page::kTwipsPerPixel;

/// Above and below the middle of a choice, where a click on its words counts.
constexpr int kWordsReachPx = 12;

QString nameOf(const char* array, int index) {
    return QString::fromLatin1(array) + QString::number(index);
}

} // namespace

AnswerPanel::AnswerPanel(look::PictureBox& Picture2, const page::FontBook& fonts,
                         markup::DrawnPage& question)
    : Picture2_(Picture2), question_(question), Text1_(new AnswerBox(&Picture2)),
      Labelien_(new LinkCaption(fonts, &Picture2)),
      Image1_(new LinkIcon(QStringLiteral("link"), &Picture2)),
      Icovideo_(new LinkIcon(QStringLiteral("video"), &Picture2)) {
    for (int i = 0; i < kChoices; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        Option1_[slot] = new OptionButton(&Picture2);
        Option1_[slot]->setObjectName(nameOf("Option1_", i));
        Check1_[slot] = new CheckButton(&Picture2);
        Check1_[slot]->setObjectName(nameOf("Check1_", i));
    }
    Text1_->setObjectName(QStringLiteral("Text1"));
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(kTextPx);
    Text1_->setFont(font);
    Text1_->installEventFilter(this);
    Labelien_->setObjectName(QStringLiteral("Labelien"));
    Image1_->setObjectName(QStringLiteral("Image1"));
    Image1_->setFocusPolicy(Qt::NoFocus); // the label beside it is the same link
    Icovideo_->setObjectName(QStringLiteral("Icovideo"));
    for (QuestionLink* link :
         {static_cast<QuestionLink*>(Labelien_), static_cast<QuestionLink*>(Image1_),
          static_cast<QuestionLink*>(Icovideo_)})
        connect(link, &QAbstractButton::clicked, this, [this, link] {
            if (follow_)
                follow_(link->tag());
        });
    Picture2.installEventFilter(this);
    reset();
}

std::vector<QWidget*> AnswerPanel::all() const {
    std::vector<QWidget*> controls(Option1_.begin(), Option1_.end());
    controls.insert(controls.end(), Check1_.begin(), Check1_.end());
    controls.insert(controls.end(), {Text1_, Labelien_, Image1_, Icovideo_});
    return controls;
}

void AnswerPanel::reset() {
    words_.clear();
    for (QWidget* control : all())
        control->hide();
    for (const ChoiceArray array : {ChoiceArray::Check1, ChoiceArray::Option1})
        for (int i = 0; i < kChoices; ++i) {
            setSelected(array, i, false);
            control(array, i)->setEnabled(true);
            control(array, i)->setAccessibleDescription({});
            // An option that was chosen took the Tab key away from the others.
            control(array, i)->setFocusPolicy(Qt::TabFocus);
        }
    Text1_->clear();
    Text1_->setEnabled(true);
    Text1_->setMark(std::nullopt);
}

void AnswerPanel::place() {
    placeChoices(ChoiceArray::Check1);
    placeChoices(ChoiceArray::Option1);
    placeText();
    placeLinks();
}

void AnswerPanel::placeChoices(ChoiceArray array) {
    for (int i = 0; i < kChoices; ++i) {
        const AnswerFields::Field& choice = *field(array, i);
        if (!choice.visible)
            continue;
        QAbstractButton* const button = control(array, i);
        const QPoint corner = placeOf(choice.place);
        button->move(corner - QPoint(look::kChoiceSignMargin, look::kChoiceSignMargin));
        const BesideText beside = textRightOf(choice.place, question_.fields, question_.recording);
        button->setAccessibleName(beside.text.isEmpty() ? QStringLiteral("Choix %1").arg(i + 1)
                                                        : beside.text);
        const int middle = corner.y() + look::kChoiceSignPx / 2;
        const int right =
            qRound(std::clamp(beside.right / page::kTwipsPerPixel, static_cast<double>(corner.x()),
                              static_cast<double>(Picture2_.width())));
        words_.push_back({QRect(QPoint(corner.x(), middle - kWordsReachPx),
                                QPoint(right, middle + kWordsReachPx)),
                          button});
        button->show();
    }
}

void AnswerPanel::placeText() {
    if (!question_.fields.Text1.visible)
        return;
    const int width = static_cast<int>(AnswerFields::kTextBoxWidth / page::kTwipsPerPixel);
    QRect place(placeOf(question_.fields.Text1.place), QSize(width, kTextHeightPx));
    // On the first line the box begins above the question: what would be cut there is left out.
    if (place.top() < 0 && place.bottom() >= 0)
        place.setTop(0);
    Text1_->setGeometry(place);
    const QString asked =
        textLeftOf(question_.fields.Text1.place, question_.fields, question_.recording).text;
    Text1_->setAccessibleName(asked.isEmpty() ? QStringLiteral("Votre réponse") : asked);
    Text1_->setAccessibleDescription(
        textRightOf(question_.fields.Text1.place, question_.fields, question_.recording).text);
    Text1_->show();
}

void AnswerPanel::placeLinks() {
    if (question_.fields.Labelien.visible)
        Labelien_->show(question_.fields.Labelien.place);
    if (question_.fields.Image1.visible) {
        // On the middle of the label's line, which is lower than the drawing is tall.
        Image1_->show(question_.fields.Image1.place);
        if (question_.fields.Labelien.visible)
            Image1_->move(Image1_->x(), Labelien_->geometry().center().y() - Image1_->height() / 2);
        Image1_->setAccessibleName(Labelien_->accessibleName());
    }
    if (question_.fields.Icovideo.visible) {
        Icovideo_->show(question_.fields.Icovideo.place);
        const QString words = question_.fields.Icovideo.place.tooltip;
        Icovideo_->setAccessibleName(words.isEmpty() ? QStringLiteral("Vidéo") : words);
    }
}

int AnswerPanel::footPx() const {
    int foot = 0;
    for (const QWidget* control : all())
        if (!control->isHidden())
            foot = std::max(foot, control->geometry().bottom() + 1);
    return foot;
}

std::vector<QWidget*> AnswerPanel::inReadingOrder() const {
    std::vector<QWidget*> controls = all();
    std::erase_if(controls, [](const QWidget* control) {
        return control->isHidden() || !control->isEnabled() || control->objectName() == u"Image1";
    });
    // Controls of a line stand a little higher or lower each; those of the next line are a line of
    // text below.
    constexpr int kSameLinePx = 8;
    const auto middle = [](const QWidget* control) { return control->geometry().center().y(); };
    std::stable_sort(controls.begin(), controls.end(),
                     [&](const auto* a, const auto* b) { return middle(a) < middle(b); });
    for (auto line = controls.begin(); line != controls.end();) {
        const int first = middle(*line);
        const auto next = std::find_if(line, controls.end(), [&](const auto* control) {
            return middle(control) > first + kSameLinePx;
        });
        std::stable_sort(line, next, [](const auto* a, const auto* b) { return a->x() < b->x(); });
        line = next;
    }
    return controls;
}

QAbstractButton* AnswerPanel::control(ChoiceArray array, int index) const {
    const Buttons& buttons = array == ChoiceArray::Check1 ? Check1_ : Option1_;
    return buttons.at(static_cast<std::size_t>(index));
}

const AnswerFields::Field* AnswerPanel::field(ChoiceArray array, int index) const {
    return (array == ChoiceArray::Check1 ? question_.fields.Check1 : question_.fields.Option1)
        .slot(index);
}

bool AnswerPanel::isVisible(ChoiceArray array, int index) const {
    return field(array, index)->visible;
}

bool AnswerPanel::isSelected(ChoiceArray array, int index) const {
    return control(array, index)->isChecked();
}

void AnswerPanel::setSelected(ChoiceArray array, int index, bool selected) {
    QAbstractButton* const button = control(array, index);
    // A chosen option gives way to another one only, and choosing one frees the others: not here.
    button->setAutoExclusive(false);
    button->setChecked(selected);
    button->setAutoExclusive(array == ChoiceArray::Option1);
}

void AnswerPanel::disable(ChoiceArray array, int index) {
    control(array, index)->setEnabled(false);
}

void AnswerPanel::paintMark(ChoiceArray array, int index, Mark mark) {
    const page::FieldOperation& place = field(array, index)->place;
    question_.recording.add(
        page::PictureOperation{page::SurfaceId::Picture2, place.x - kMarkLeftOfControlTwips,
                               place.y - kMarkAboveControlTwips, kMarkTwips, kMarkTwips,
                               markPicture(mark), markName(mark), true});
    Picture2_.showDrawing();
    control(array, index)
        ->setAccessibleDescription(mark == Mark::InSolution ? QStringLiteral("à choisir")
                                                            : QStringLiteral("à ne pas choisir"));
}

std::u16string AnswerPanel::typedText() const {
    return Text1_->text().toStdU16String();
}

void AnswerPanel::setTypedText(const std::u16string& text) {
    Text1_->setText(QString::fromStdU16String(text));
}

void AnswerPanel::disableTypedText() {
    Text1_->setEnabled(false);
}

void AnswerPanel::markTypedText(Mark mark) {
    Text1_->setMark(mark);
    const QString verdict = mark == Mark::InSolution ? QStringLiteral("réponse juste")
                                                     : QStringLiteral("réponse fausse");
    const QString unit = Text1_->accessibleDescription();
    Text1_->setAccessibleDescription(unit.isEmpty() ? verdict
                                                    : unit + QStringLiteral(", ") + verdict);
}

bool AnswerPanel::hasAnswer() const {
    const auto checked = [](const QAbstractButton* choice) { return choice->isChecked(); };
    return !Text1_->text().isEmpty() || std::any_of(Check1_.begin(), Check1_.end(), checked) ||
           std::any_of(Option1_.begin(), Option1_.end(), checked);
}

QAbstractButton* AnswerPanel::choiceWithWordsAt(QPoint place) const {
    const auto away = [place](const Words& words) {
        return std::abs(words.where.center().y() - place.y());
    };
    const Words* nearest = nullptr; // words on lines that stand close overlap
    for (const Words& words : words_)
        if (words.where.contains(place) && words.choice->isEnabled() &&
            (!nearest || away(words) < away(*nearest)))
            nearest = &words;
    return nearest ? nearest->choice : nullptr;
}

bool AnswerPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &Picture2_ && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        QAbstractButton* const choice = choiceWithWordsAt(mouse->position().toPoint());
        if (choice && mouse->button() == Qt::LeftButton) {
            choice->click();
            return true;
        }
    }
    if (watched == Text1_ && event->type() == QEvent::KeyPress) {
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        const QChar become =
            typed.size() == 1 ? TestSession::typedCharacter(typed.front().unicode()) : QChar();
        if (typed.size() == 1 && become != typed.front()) {
            Text1_->insert(become);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

GivenAnswer AnswerPanel::given() const {
    GivenAnswer answer;
    for (int i = 0; i < kChoices; ++i) {
        answer.options[static_cast<std::size_t>(i)] = isSelected(ChoiceArray::Option1, i);
        answer.checks[static_cast<std::size_t>(i)] = isSelected(ChoiceArray::Check1, i);
    }
    answer.text = typedText();
    return answer;
}

void AnswerPanel::give(const GivenAnswer& answer) {
    const auto select = [this](ChoiceArray array, int index, bool selected) {
        if (selected && isVisible(array, index))
            setSelected(array, index, true);
    };
    for (int i = 0; i < kChoices; ++i) {
        select(ChoiceArray::Option1, i, answer.options[static_cast<std::size_t>(i)]);
        select(ChoiceArray::Check1, i, answer.checks[static_cast<std::size_t>(i)]);
    }
    if (!Text1_->isHidden())
        setTypedText(answer.text);
}

} // namespace exercises
