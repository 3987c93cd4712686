#include "shell/fermeur.h"

#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/program_icon.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>

#include <chrono>
#include <utility>

namespace shell {

namespace {

constexpr QSize kSize(416, 176);
constexpr QRectF kPicture(40, 56, 64, 64);
constexpr QPointF kName(128, 82); ///< start of its baseline
constexpr int kNamePx = 24;
constexpr QRect kLabel(128, 95, 264, 20);

/// Where the gradient over the ivory ends, at the bottom.
constexpr QRgb kFoot = 0xfff0ead6;

/// A window that the system never shows, for example on a desktop that is out of sight, is never
/// painted either; the program must end all the same.
constexpr std::chrono::milliseconds kPatience{2'000};

bool canBeCovered(const QWidget* window) {
    return window && window->isVisible() && !window->isMinimized();
}

} // namespace

Fermeur::Fermeur(QWidget* window, std::function<void()> closing)
    : QDialog(canBeCovered(window) ? window : nullptr, Qt::Dialog | Qt::FramelessWindowHint),
      closing_(std::move(closing)), Image1_(QStringLiteral("orvalente")) {
    const QString words = QStringLiteral("Fermeture du logiciel et de ses modules…");
    setObjectName(QStringLiteral("Fermeur"));
    setWindowTitle(QStringLiteral("Fermeture"));
    setWindowIcon(look::programIcon()); // there may be no window that gives it one
    setAccessibleName(words);
    setModal(true);
    setFixedSize(kSize);
    place(parentWidget());

    auto* Label1 = new QLabel(words, this);
    Label1->setTextFormat(Qt::PlainText);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setFont(look::interfaceFont(look::kLabelPx));
    look::setInk(*Label1, look::kInk);
    Label1->setGeometry(kLabel);

    painted_.setSingleShot(true);
    connect(&painted_, &QTimer::timeout, this, [this] { Form_Activate(); });
}

void Fermeur::place(QWidget* window) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QRect below = window   ? QRect(window->mapToGlobal(QPoint(0, 0)), window->size())
                        : screen ? screen->geometry()
                                 : QRect(QPoint(0, 0), kSize);
    move(below.left() + (below.width() - kSize.width()) / 2,
         below.top() + (below.height() - kSize.height()) / 2);
}

void Fermeur::run() {
    QEventLoop shown;
    connect(&painted_, &QTimer::timeout, &shown, &QEventLoop::quit);
    painted_.start(kPatience);
    show();
    shown.exec();
}

/// Runs once.
void Fermeur::Form_Activate() {
    if (const auto closing = std::exchange(closing_, nullptr))
        closing();
}

void Fermeur::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, QColor::fromRgb(look::kIvory));
    ground.setColorAt(1, QColor::fromRgb(kFoot));
    look::drawFrame(painter, rect(), 0, look::kRule, ground);
    Image1_.paint(painter, kPicture, look::Icon::Style::Coloured);
    painter.setFont(look::interfaceFont(kNamePx, look::Weight::Bold));
    painter.setPen(QColor::fromRgb(look::kBlue));
    painter.drawText(kName, QStringLiteral("Orvalente"));
    // What is painted reaches the screen before the next turn of the event loop.
    if (closing_)
        painted_.start(0);
}

void Fermeur::closeEvent(QCloseEvent* event) {
    event->ignore();
}

} // namespace shell
