#include "viewer/video_frame.h"

#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/tool_tip.h"
#include "page/twips.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <array>

namespace viewer {

namespace {

using look::Button;

constexpr QRect kPicture(8, 8, 320, 240);
constexpr QSize kButton(31, 32);
constexpr int kButtonsWidth = 217;

// The buttons keep their place in the window: they are measured from the frame's lower edge.
constexpr int kButtonsLeft = 399;
constexpr int kButtonsAbove = 56;
constexpr int kMarkerAbove = 16;
constexpr QSizeF kMarker(217, 8);
/// Around the track, where a click is meant for it.
constexpr double kReach = 8;

// At double size everything stands below the picture.
constexpr QRect kDoublePicture(72, 8, 640, 480);
constexpr QPoint kDoubleButtons(72, 496);
constexpr QRectF kDoubleTrack(305, 508, 271, 8);

// The button for the size of the picture: beside the picture below the words, or at the right.
constexpr QRect kSizeButton(344, 64, 120, 32);
constexpr QRect kDoubleSizeButton(592, 496, 120, 32);

// Sign and words, from the left: beside the picture, or at the left end when it is closed.
constexpr double kWordsLeftOpen = 344;
constexpr double kWordsLeftClosed = 8;
constexpr double kSignTop = 8;
constexpr double kSignPx = 24;
constexpr double kWordsIndent = 32;
constexpr double kHeadingFoot = 25;
constexpr double kStatusFoot = 45;

struct Row {
    int index;
    const char* toolTip;
    const char* icon;
};

/// From left to right.
constexpr std::array<Row, 7> kRows = {{
    {6, "Retour au début", "to-start"},
    {4, "Image précédente", "back-step"},
    {0, "Lecture", "play"},
    {2, "Pause", "pause"},
    {3, "Stop", "stop"},
    {1, "Image suivante", "step"},
    {5, "Aller à la fin", "to-end"},
}};

} // namespace

VideoFrame::VideoFrame(QWidget* parent)
    : QWidget(parent), projo_(new VideoPicture(this)), buttons_(new QWidget(this)),
      size_(new Button({}, {.icon = {}}, this)) {
    look::setAccessibleRole(*this, QAccessible::Grouping);
    setObjectName(QStringLiteral("videoFrame"));
    setAccessibleName(QStringLiteral("Vidéo de la page"));
    setFocusPolicy(Qt::TabFocus);
    projo_->setGeometry(kPicture);
    projo_->hide();
    projo_->onDoubleClick([this] { toggleSize(); });
    addButtons();
    size_->setObjectName(QStringLiteral("videoSize"));
    connect(size_, &QPushButton::clicked, this, [this] { toggleSize(); });
}

void VideoFrame::addButtons() {
    buttons_->resize(kButtonsWidth, kButton.height());
    int x = 0;
    for (const Row& row : kRows) {
        auto* button = new Button(
            {}, {.kind = Button::Kind::Toolbar, .icon = QString::fromLatin1(row.icon)}, buttons_);
        button->setObjectName(QStringLiteral("Image4_%1").arg(row.index));
        look::setToolTip(*button, QString::fromUtf8(row.toolTip));
        button->setAccessibleName(button->toolTip());
        button->setGeometry(QRect(QPoint(x, 0), kButton));
        connect(button, &QPushButton::clicked, this, [this, index = row.index] { press(index); });
        button->installEventFilter(this);
        x += kButton.width();
    }
}

void VideoFrame::setShape(Shape shape) {
    shape_ = shape;
    const bool isDouble = shape == Shape::Double;
    projo_->setGeometry(isDouble ? kDoublePicture : kPicture);
    projo_->setVisible(shape != Shape::Closed);
    buttons_->move(isDouble ? kDoubleButtons : QPoint(kButtonsLeft, height() - kButtonsAbove));
    size_->setCaption(isDouble ? QStringLiteral("Taille normale")
                               : QStringLiteral("Double taille"));
    size_->setGeometry(isDouble ? kDoubleSizeButton : kSizeButton);
    size_->setVisible(shape != Shape::Closed && projo_->isVideo());
    update();
}

void VideoFrame::toggleSize() {
    if (sizeToggled_ && projo_->isVideo())
        sizeToggled_();
}

void VideoFrame::setMarkerWidth(double twips) {
    share_ = qBound(0.0, twips / page::kTwipsPerPixel / kMarker.width(), 1.0);
    update();
}

void VideoFrame::setStatus(const QString& status, bool playing, bool atEnd) {
    playing_ = playing;
    if (status == status_ && atEnd == atEnd_)
        return;
    atEnd_ = atEnd;
    status_ = status;
    setAccessibleDescription(status);
    update();
}

QPoint VideoFrame::menuPlace() const {
    return underMouse() ? QCursor::pos() : projo_->mapToGlobal(QPoint(0, 0));
}

void VideoFrame::press(int index) {
    // The buttons leave the keyboard where it is; who clicks one goes on with keys all the same.
    QWidget* focused = window()->focusWidget();
    if (focused != this && !isAncestorOf(focused))
        setFocus(Qt::MouseFocusReason);
    if (pressed_)
        pressed_(index);
}

void VideoFrame::playOrPause() {
    press(playing_ ? 2 : 0);
}

QRectF VideoFrame::track() const {
    if (shape_ == Shape::Double)
        return kDoubleTrack;
    return {QPointF(kButtonsLeft, height() - kMarkerAbove), kMarker};
}

void VideoFrame::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    seeking_ = event->button() == Qt::LeftButton &&
               track().adjusted(-kReach, -kReach, kReach, kReach).contains(event->position());
    if (seeking_)
        seekTo(event->position().x());
    else
        QWidget::mousePressEvent(event);
}

void VideoFrame::mouseMoveEvent(QMouseEvent* event) {
    if (seeking_)
        seekTo(event->position().x());
}

void VideoFrame::mouseReleaseEvent(QMouseEvent*) {
    seeking_ = false;
}

void VideoFrame::seekTo(double x) {
    if (sought_)
        sought_(qBound(0.0, (x - track().left()) / track().width(), 1.0));
}

bool VideoFrame::pressForKey(int key) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        press(4);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        press(1);
        return true;
    case Qt::Key_Home:
        press(6);
        return true;
    case Qt::Key_End:
        press(5);
        return true;
    default:
        return false;
    }
}

void VideoFrame::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier))
        QWidget::keyPressEvent(event);
    else if (event->key() == Qt::Key_Escape && shape_ == Shape::Double)
        toggleSize();
    else if (event->key() == Qt::Key_Space)
        playOrPause();
    else if (!pressForKey(event->key()))
        QWidget::keyPressEvent(event);
}

/// On a button, Space presses that one.
bool VideoFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!(key->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) &&
            pressForKey(key->key()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void VideoFrame::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    drawFrame(painter, rect(), 0, hasFocus() ? kBlue : kRule, QColor::fromRgb(kPaper),
              hasFocus() ? 2 : 1);

    if (shape_ != Shape::Double)
        paintWords(painter);

    const QRectF keys = buttons_->geometry();
    drawFrame(painter, keys, 4, kEdge, QColor::fromRgb(kPaper));
    for (std::size_t i = 1; i < kRows.size(); ++i)
        painter.fillRect(QRectF(keys.left() + static_cast<double>(i) * kButton.width(),
                                keys.top() + 1, crisp(painter), keys.height() - 2),
                         QColor::fromRgb(kRule));
    paintMarker(painter);
}

void VideoFrame::paintWords(QPainter& painter) const {
    using namespace look;
    const double left = shape_ == Shape::Open ? kWordsLeftOpen : kWordsLeftClosed;
    sign_.paint(painter, {left, kSignTop, kSignPx, kSignPx}, Icon::Style::Coloured);
    painter.setPen(QColor::fromRgb(kBlue));
    painter.setFont(interfaceFont(kLabelPx, Weight::Bold));
    painter.drawText(QPointF(left + kWordsIndent, kHeadingFoot), accessibleName());
    painter.setPen(QColor::fromRgb(kMuted));
    painter.setFont(interfaceFont(kButtonPx));
    painter.drawText(QPointF(left + kWordsIndent, kStatusFoot), status_);
}

void VideoFrame::paintMarker(QPainter& painter) const {
    using namespace look;
    QRectF marker = track();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(kVideoTrack));
    painter.drawRoundedRect(marker, 2, 2);
    // The marker is not told of the last frame: the bar is full all the same.
    if (!atEnd_)
        marker.setWidth(share_ * marker.width());
    painter.setBrush(QColor::fromRgb(kBlue));
    painter.drawRoundedRect(marker, 2, 2);
}

} // namespace viewer
