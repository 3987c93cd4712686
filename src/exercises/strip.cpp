#include "exercises/strip.h"

#include "exercises/mark_picture.h"
#include "exercises/progress_strip.h"
#include "exercises/strip_accessible.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/tool_tip.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace exercises {

namespace {

/// Lowest band that a caption fits in, in pixels.
constexpr int kCaptionHeight = 12;
/// Height of the letters' middle above their foot, in parts of the size.
constexpr double kMiddle = 0.355;

constexpr double kMarkMiddleX = 20;
constexpr double kDiscPx = 20;
constexpr double kMarkPx = 16;
/// Discs smaller than this hold no sign that can be told apart.
constexpr double kSmallestDiscPx = 9;
/// In their place: a white bar, long for a wrong answer, short for a right one.
constexpr int kShortBarPx = 6;
constexpr int kLongBarPx = 24;
constexpr int kBarX = 8;

} // namespace

Strip::Strip(const TestState& test, QWidget* parent)
    : QWidget(parent), test_(test), right_(markName(Mark::InSolution)),
      wrong_(markName(Mark::NotInSolution)) {
    // Before anything that makes Qt ask for it: the answer is kept.
    StripAccessible::install();
    setObjectName(QStringLiteral("Picture1"));
    setAccessibleName(QStringLiteral("Questions du test"));
    setFont(look::interfaceFont(look::kButtonPx, look::Weight::Bold));
    setFocusPolicy(Qt::TabFocus);
}

QString Strip::nameOf(int question) const {
    return QString::fromStdU16String(bandName(question, test_.QuestionState.valueOr(question, 0)));
}

QRect Strip::bandRect(int question) const {
    const auto band = bandOf(question, test_.QuestionCount, height());
    return band ? QRect(0, band->top, width(), band->bottom - band->top) : QRect();
}

void Strip::refresh() {
    update();
    StripAccessible::tellChange(*this);
}

void Strip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    for (int question = 1; question <= test_.QuestionCount; ++question)
        if (!bandRect(question).isEmpty())
            paintBand(painter, question);
    const QRect current = bandRect(test_.CurrentQuestion);
    if (hasFocus() && !current.isEmpty())
        look::drawFrame(painter, current, 0, look::kBlue, Qt::NoBrush, 3);
}

void Strip::paintBand(QPainter& painter, int question) const {
    const QRect band = bandRect(question);
    const int state = test_.QuestionState.valueOr(question, 0);
    const BandInks inks = bandInks(state);
    painter.fillRect(band, QColor::fromRgb(inks.light));
    painter.fillRect(band.adjusted(1, 1, -1, -1), QColor::fromRgb(inks.frame));
    painter.fillRect(band.adjusted(2, 2, -2, -2), QColor::fromRgb(inks.middle));
    if (state == 1 || state == -1)
        paintMark(painter, band, state);
    if (band.height() < kCaptionHeight)
        return; // it would be cut; the tool tip and the screen reader still tell
    const QString caption = QString::fromStdU16String(bandCaption(question));
    const double x = (width() - QFontMetricsF(font()).horizontalAdvance(caption)) / 2;
    const double middle = band.top() + band.height() / 2.0;
    painter.setPen(QColor::fromRgb(inks.caption));
    painter.drawText(QPointF(x, look::snapped(painter, middle + kMiddle * font().pixelSize())),
                     caption);
}

/// The sign beside the colours: a check mark or a cross on a white disc.
void Strip::paintMark(QPainter& painter, const QRect& band, int state) const {
    const QPointF middle(kMarkMiddleX, band.top() + band.height() / 2.0);
    const double disc = std::min(kDiscPx, static_cast<double>(band.height() - 2));
    if (disc < kSmallestDiscPx) {
        painter.fillRect(
            QRect(kBarX, band.top(), state == 1 ? kShortBarPx : kLongBarPx, band.height()),
            QColor::fromRgb(look::kPaper));
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(look::kPaper));
    painter.drawEllipse(middle, disc / 2, disc / 2);
    painter.restore();
    const double side = disc * kMarkPx / kDiscPx;
    (state == 1 ? right_ : wrong_)
        .paint(painter, QRectF(middle.x() - side / 2, middle.y() - side / 2, side, side),
               look::Icon::Style::Coloured);
}

void Strip::mousePressEvent(QMouseEvent* event) {
    event->accept(); // the release counts
}

void Strip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && choose_)
        choose_(event->position().y());
}

void Strip::chooseQuestion(int question) {
    const int count = test_.QuestionCount;
    if (count <= 0 || !choose_)
        return;
    // The middle of the band.
    choose_((std::clamp(question, 1, count) - 0.5) * height() / count);
}

void Strip::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        return chooseQuestion(test_.CurrentQuestion - 1);
    case Qt::Key_Down:
    case Qt::Key_Right:
        return chooseQuestion(test_.CurrentQuestion + 1);
    case Qt::Key_Home:
        return chooseQuestion(1);
    case Qt::Key_End:
        return chooseQuestion(test_.QuestionCount);
    default:
        QWidget::keyPressEvent(event);
    }
}

void Strip::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    StripAccessible::tellFocus(*this);
}

bool Strip::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const auto question = questionAt(help->pos().y(), test_.QuestionCount, height()))
        look::showToolTip(help->globalPos(), nameOf(*question), *this);
    return true;
}

Marker::Marker(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Image4"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(kSize);
}

void Marker::setFace(int face) {
    face_ = look::Icon(QStringLiteral("faces/%1").arg(face));
    update();
}

void Marker::paintEvent(QPaintEvent*) {
    constexpr double kFacePx = 32;
    QPainter painter(this);
    look::drawFrame(painter, rect(), kSize.height() / 2.0, look::kBlue,
                    QColor::fromRgb(look::kPaper), 2);
    face_.paint(painter,
                QRectF((width() - kFacePx) / 2, (height() - kFacePx) / 2, kFacePx, kFacePx),
                look::Icon::Style::Coloured);
}

} // namespace exercises
