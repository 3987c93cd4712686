#include "exercises/cjuste.h"

#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace exercises {

namespace {

constexpr QSize kSize(256, 152);
constexpr QRectF kPicture(80, 8, 96, 96);
constexpr QRect kWords(8, 112, 240, 28);
constexpr int kWordsPx = 16;
constexpr double kRadius = 6;

} // namespace

Cjuste::Cjuste(QWidget* window)
    : QDialog(window, Qt::Dialog | Qt::FramelessWindowHint),
      Image1_(QStringLiteral("faces/bravo-1")), Image2_(QStringLiteral("faces/bravo-2")) {
    const QString words = QStringLiteral("Réponse exacte");
    setObjectName(QStringLiteral("Cjuste"));
    setWindowTitle(words);
    setAccessibleName(words);
    setWindowModality(Qt::WindowModal);
    setFixedSize(kSize);
    const QRect place(
        QPoint((window->width() - kSize.width()) / 2, (window->height() - kSize.height()) / 2),
        kSize);
    move(window->mapToGlobal(place.topLeft()));
    behind_ = window->grab(place);

    auto* Label3 = new QLabel(words, this);
    Label3->setTextFormat(Qt::PlainText);
    Label3->setObjectName(QStringLiteral("Label3"));
    Label3->setFont(look::interfaceFont(kWordsPx, look::Weight::Bold));
    look::setInk(*Label3, look::kGreen);
    Label3->setAlignment(Qt::AlignCenter);
    Label3->setGeometry(kWords);

    Timer1_.setInterval(RightAnswerBlink::kIntervalMs);
    connect(&Timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
}

void Cjuste::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    blink_.activate();
    Timer1_.start();
}

void Cjuste::Timer1_Timer() {
    const bool stays = blink_.tick();
    update();
    if (!stays)
        accept();
}

void Cjuste::keyPressEvent(QKeyEvent* event) {
    event->accept(); // it goes by itself, and no key typed meanwhile is for the next question
}

void Cjuste::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, behind_);
    look::drawFrame(painter, rect(), kRadius, look::kGreen, QColor::fromRgb(look::kGreenTint), 2);
    const look::Icon& Image3 = blink_.showsFirstPicture() ? Image1_ : Image2_;
    Image3.paint(painter, kPicture, look::Icon::Style::Coloured);
}

} // namespace exercises
