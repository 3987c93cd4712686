#include "calculator/machine.h"

#include "calculator/display.h"
#include "calculator/key_button.h"
#include "calculator/option_frame.h"
#include "calculator/pasted_keys.h"
#include "look/accessible_role.h"
#include "look/announcement.h"
#include "look/enter_once.h"
#include "look/mnemonics.h"
#include "look/program_icon.h"
#include "text/rounding.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QRadioButton>

namespace calculator {

namespace {

constexpr QSize kSize(302, 430);
constexpr QRect kDisplay(7, 12, 286, 44);
constexpr QRect kAngles(7, 64, 84, 64);
constexpr QRect kFormats(99, 64, 98, 64);

constexpr int kDefaultBreathingInterval = 20;

const QString kPointNotComma = QStringLiteral("Le signe décimal est le point");

/// The character that a key of the keyboard stands for; null for none. A "^" that waits for the
/// next letter, as on French keyboards, counts at once; so does what AltGr types, which Windows
/// tells as Ctrl and Alt together.
char16_t characterOf(const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kAltGr = Qt::ControlModifier | Qt::AltModifier;
    const Qt::KeyboardModifiers commands = event.modifiers() & (kAltGr | Qt::MetaModifier);
    if (commands && commands != kAltGr)
        return {};
    switch (event.key()) {
    case Qt::Key_Backspace:
        return u'\b';
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u'\r';
    case Qt::Key_Dead_Circumflex:
        return u'^';
    default:
        return event.text().size() == 1 ? event.text().front().unicode() : u'\0';
    }
}

/// The four sides of a rectangle, one pixel wide, given by its first and last pixels.
void outline(QPainter& painter, QPoint first, QPoint last, Qt::GlobalColor colour) {
    const int width = last.x() - first.x() + 1;
    const int height = last.y() - first.y() + 1;
    painter.fillRect(first.x(), first.y(), width, 1, colour);
    painter.fillRect(first.x(), last.y(), width, 1, colour);
    painter.fillRect(first.x(), first.y(), 1, height, colour);
    painter.fillRect(last.x(), first.y(), 1, height, colour);
}

} // namespace

Machine::Machine(Memory& memory)
    : rules_(memory, *this, QLocale().decimalPoint().front().unicode()), z1_(new Display(this)),
      breathingInterval_(kDefaultBreathingInterval) {
    look::setAccessibleRole(*this, QAccessible::Window);
    setObjectName(QStringLiteral("Machine"));
    setWindowTitle(QStringLiteral("Calculatrice"));
    setWindowIcon(look::programIcon());
    setFixedSize(kSize);
    z1_->setGeometry(kDisplay);
    addOptions();
    addKeys();
    new look::MnemonicDisplay(this);
    new look::EnterOnce(this);
    rules_.load();
    z1_->setFocus();
}

void Machine::addOptions() {
    const auto add = [this](const char* caption, const char* name,
                            const std::array<QString, 2>& captions, const QRect& where,
                            auto choose) {
        auto* const frame =
            new OptionFrame(QString::fromUtf8(caption), QString::fromUtf8(name), captions, this);
        frame->setGeometry(where);
        frame->option(1)->setChecked(true);
        for (const int index : {0, 1}) {
            // Chosen again an option acts again: the format shows the result anew.
            connect(frame->option(index), &QRadioButton::clicked, this,
                    [choose, index] { choose(index); });
        }
    };
    add("Angles", "angle", {QStringLiteral("Degrés"), QStringLiteral("Radians")}, kAngles,
        [this](int index) { rules_.setAngles(static_cast<AngleMode>(index)); });
    add("Affichage", "C", {QStringLiteral("Scientifique"), QStringLiteral("Standard")}, kFormats,
        [this](int index) { rules_.setFormat(static_cast<Format>(index)); });
}

void Machine::addKeys() {
    for (const KeyPlace& place : keyLayout()) {
        const Key& key = keyNamed(place.name);
        auto* const button = new KeyButton(key, place, this);
        connect(button, &KeyButton::clicked, this, [this, &key] { press(key); });
    }
}

void Machine::press(const Key& key) {
    rules_.press(key);
    // The memory keys change no text, yet hand the focus back to the display as all keys do.
    z1_->setFocus();
    if (key.rule == Rule::Evaluate && !rules_.evaluating())
        look::announce(*this, z1_->text().trimmed());
    if (closing_ && !rules_.evaluating())
        close();
}

void Machine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        return rules_.cancel();
    if (event->matches(QKeySequence::Paste))
        return paste();
    const char16_t character = characterOf(*event);
    if (const Key* const key = keyTyped(character))
        return press(*key);
    if (character == u',' && !rules_.evaluating())
        z1_->showHint(kPointNotComma);
    QWidget::keyPressEvent(event);
}

void Machine::paste() {
    const PastedKeys pasted = pastedKeys(QGuiApplication::clipboard()->text().toStdU16String());
    for (const Key* const key : pasted.keys)
        press(*key);
    if (pasted.endedAtComma)
        z1_->showHint(kPointNotComma);
}

void Machine::closeEvent(QCloseEvent* event) {
    if (!rules_.evaluating())
        return QWidget::closeEvent(event);
    closing_ = true;
    rules_.cancel();
    event->ignore();
}

void Machine::showText(TextView text) {
    if (!rules_.evaluating())
        sinceBreath_.start();
    z1_->showText(QStringView(text).toString());
}

void Machine::beep() {
    QApplication::beep();
}

void Machine::breathe() {
    if (sinceBreath_.elapsed() < breathingInterval_)
        return;
    QCoreApplication::processEvents();
    sinceBreath_.start();
}

void Machine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int x = 0; x < kSize.width(); ++x) {
        const int g = static_cast<int>(text::roundHalfEven(200 - x / 2.0));
        painter.fillRect(x, 0, 1, kSize.height(), QColor(g, g + 50, g + 50));
    }
    outline(painter, {1, 1}, {299, 428}, Qt::white);
    painter.fillRect(1, 1, 299, 1, Qt::black);
    painter.fillRect(1, 1, 1, 427, Qt::black);
    outline(painter, {82, 290}, {206, 421}, Qt::white);
    outline(painter, {81, 289}, {205, 420}, Qt::cyan);
}

} // namespace calculator
