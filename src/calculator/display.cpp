#include "calculator/display.h"

#include "look/announcement.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

namespace calculator {

namespace {

constexpr QRgb kEdge = 0xff7d8f8b;
constexpr double kRadius = 4;

/// From the edge to the text, of which the base class itself keeps two pixels.
constexpr int kMarginPx = 9;
constexpr int kOwnMarginPx = 2;

constexpr double kCaretGap = 2;

/// The hint stands between the edge and the largest letters.
constexpr int kHintTop = 2;

/// Where the start of a text lies beyond the left edge, what is cut there fades out.
constexpr double kFadePx = 20;

constexpr int kLargestPx = 19;
constexpr int kSmallestPx = look::kSmallPx;

} // namespace

Display::Display(QWidget* parent) : QLineEdit(parent) {
    setObjectName(QStringLiteral("z1"));
    setAccessibleName(QStringLiteral("Affichage"));
    setReadOnly(true);
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    // Keys arrive one by one, "^" included where it waits for the next letter elsewhere.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setTextMargins(kMarginPx - kOwnMarginPx, 0, kMarginPx - kOwnMarginPx, 0);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, QColor::fromRgb(look::kInk));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(look::kPressedTint));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(look::kInk));
    setPalette(colours);
    setFont(look::interfaceFont(kLargestPx));
}

void Display::showText(const QString& text) {
    hint_.clear();
    setAccessibleDescription({});
    fitFont(text);
    setText(text);
    end(false);
    setFocus();
    update();
}

void Display::showHint(const QString& hint) {
    hint_ = hint;
    setAccessibleDescription(hint);
    look::announce(*this, hint);
    update();
}

void Display::fitFont(const QString& text) {
    int pixels = kLargestPx;
    while (pixels > kSmallestPx &&
           QFontMetricsF(look::interfaceFont(pixels)).horizontalAdvance(text) > room())
        --pixels;
    if (pixels != font().pixelSize())
        setFont(look::interfaceFont(pixels));
}

double Display::room() const {
    return width() - 2 * kMarginPx;
}

void Display::paintFade() {
    const double left = kMarginPx - kOwnMarginPx;
    QLinearGradient fade(left, 0, left + kFadePx, 0);
    QColor paper = QColor::fromRgb(look::kPaper);
    fade.setColorAt(0, paper);
    paper.setAlpha(0);
    fade.setColorAt(1, paper);
    QPainter(this).fillRect(QRectF(left, kRadius, kFadePx, height() - 2 * kRadius), fade);
}

void Display::paintHint() {
    if (hint_.isEmpty())
        return;
    QPainter painter(this);
    painter.setFont(look::interfaceFont(look::kSmallPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(rect().adjusted(kMarginPx, kHintTop, -kMarginPx, 0),
                     Qt::AlignRight | Qt::AlignTop, hint_);
}

void Display::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        look::drawFrame(painter, rect(), kRadius, kEdge, QColor::fromRgb(look::kPaper));
    }
    QLineEdit::paintEvent(event);
    if (QFontMetricsF(font()).horizontalAdvance(text()) > room())
        paintFade();
    paintHint();
    if (!hasFocus() || hasSelectedText())
        return;
    QPainter painter(this);
    const QRect caret = cursorRect();
    const double x =
        std::min<double>(caret.center().x() + kCaretGap, width() - kMarginPx + kCaretGap);
    painter.fillRect(
        QRectF(look::snapped(painter, x), caret.top(), look::crisp(painter), caret.height()),
        QColor::fromRgb(look::kInk));
}

void Display::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy) && !hasSelectedText())
        QGuiApplication::clipboard()->setText(text().trimmed());
    else if (event->matches(QKeySequence::Copy))
        copy();
    else
        event->ignore();
}

} // namespace calculator
