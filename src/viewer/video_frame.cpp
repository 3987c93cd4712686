#include "viewer/video_frame.h"

#include "platform/qt/look/button.h"
#include "platform/qt/look/interface_font.h"
#include "platform/qt/look/palette.h"
#include "platform/qt/look/pixels.h"

#include <QPainter>

#include <array>

namespace viewer {

namespace {

using platform::look::Button;

constexpr QRect kPicture(8, 8, 320, 240);
constexpr QSize kButton(31, 32);
constexpr int kButtonsWidth = 217;

// The buttons keep their place in the window: they are measured from the frame's lower edge.
constexpr int kButtonsLeft = 399;
constexpr int kButtonsAbove = 56;
constexpr int kMarkerAbove = 16;
constexpr QSizeF kMarker(217, 8);

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
    : QWidget(parent), projo_(new QWidget(this)), buttons_(new QWidget(this)) {
    setObjectName(QStringLiteral("videoFrame"));
    setAccessibleName(QStringLiteral("Vidéo de la page"));
    projo_->setObjectName(QStringLiteral("projo"));
    projo_->setAccessibleName(QStringLiteral("Image de la vidéo"));
    projo_->setGeometry(kPicture);
    projo_->hide();
    addButtons();
}

void VideoFrame::addButtons() {
    buttons_->resize(kButtonsWidth, kButton.height());
    int x = 0;
    for (const Row& row : kRows) {
        auto* button = new Button(
            {}, {.kind = Button::Kind::Toolbar, .icon = QString::fromLatin1(row.icon)}, buttons_);
        button->setObjectName(QStringLiteral("Image4_%1").arg(row.index));
        button->setToolTip(QString::fromUtf8(row.toolTip));
        button->setAccessibleName(button->toolTip());
        button->setGeometry(QRect(QPoint(x, 0), kButton));
        connect(button, &QPushButton::clicked, this, [this, index = row.index] {
            if (pressed_)
                pressed_(index);
        });
        x += kButton.width();
    }
}

void VideoFrame::setOpen(bool open) {
    open_ = open;
    projo_->setVisible(open);
    buttons_->move(kButtonsLeft, height() - kButtonsAbove);
    update();
}

void VideoFrame::setProgress(double share) {
    progress_ = qBound(0.0, share, 1.0);
    update();
}

void VideoFrame::setStatus(const QString& status) {
    status_ = status;
    setAccessibleDescription(status);
    update();
}

void VideoFrame::paintEvent(QPaintEvent*) {
    using namespace platform::look;
    QPainter painter(this);
    drawFrame(painter, rect(), 0, kRule, QColor::fromRgb(kPaper));

    const double left = open_ ? kWordsLeftOpen : kWordsLeftClosed;
    sign_.paint(painter, {left, kSignTop, kSignPx, kSignPx}, Icon::Style::Coloured);
    painter.setPen(QColor::fromRgb(kBlue));
    painter.setFont(interfaceFont(kLabelPx, Weight::Bold));
    painter.drawText(QPointF(left + kWordsIndent, kHeadingFoot), accessibleName());
    painter.setPen(QColor::fromRgb(kMuted));
    painter.setFont(interfaceFont(kButtonPx));
    painter.drawText(QPointF(left + kWordsIndent, kStatusFoot), status_);

    const QRectF keys = buttons_->geometry();
    drawFrame(painter, keys, 4, kEdge, QColor::fromRgb(kPaper));
    for (std::size_t i = 1; i < kRows.size(); ++i)
        painter.fillRect(QRectF(keys.left() + static_cast<double>(i) * kButton.width(),
                                keys.top() + 1, crisp(painter), keys.height() - 2),
                         QColor::fromRgb(kRule));

    QRectF marker(QPointF(kButtonsLeft, height() - kMarkerAbove), kMarker);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(kVideoTrack));
    painter.drawRoundedRect(marker, 2, 2);
    marker.setWidth(marker.width() * progress_);
    painter.setBrush(QColor::fromRgb(kBlue));
    painter.drawRoundedRect(marker, 2, 2);
}

} // namespace viewer
