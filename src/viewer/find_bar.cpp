#include "viewer/find_bar.h"

#include "look/accessible_role.h"
#include "look/announcement.h"
#include "look/button.h"
#include "look/ink.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/text_field.h"
#include "look/tool_tip.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace viewer {

namespace {

using look::Button;

// Field and status end where the page's text column and its scroll bar do.
constexpr int kTop = 6;
constexpr int kTall = 28;
constexpr QRect kField(6, kTop, 248, kTall);
constexpr int kPreviousX = 262;
constexpr int kNextX = 298;
constexpr QRect kStatus(338, kTop, 236, kTall);
constexpr int kCloseX = 582;

/// Longer than any word or formula; it bounds the work for each key typed.
constexpr int kMaxTyped = 100;

} // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent),
      previous_(addButton("findPrevious", "up", QStringLiteral("Occurrence précédente (Maj+F3)"),
                          kPreviousX, &Actions::previous)),
      next_(addButton("findNext", "down", QStringLiteral("Occurrence suivante (F3)"), kNextX,
                      &Actions::next)),
      status_(new QLabel(this)) {
    using namespace look;
    look::setAccessibleRole(*this, QAccessible::Grouping);
    setObjectName(QStringLiteral("findBar"));
    setAccessibleName(QStringLiteral("Recherche dans la page"));
    setFixedSize(kWidth, kHeight);

    status_->setObjectName(QStringLiteral("findStatus"));
    status_->setTextFormat(Qt::PlainText);
    status_->setFont(interfaceFont(kLabelPx));
    setInk(*status_, kInk);
    status_->setGeometry(kStatus);

    addButton("findClose", "close", QStringLiteral("Fermer la recherche (Échap)"), kCloseX,
              &Actions::close);
    setStatus({}, false);
}

Button* FindBar::addButton(const char* name, const char* icon, const QString& toolTip, int x,
                           std::function<void()> Actions::*action) {
    auto* button =
        new Button({}, {.kind = Button::Kind::Toolbar, .icon = QString::fromLatin1(icon)}, this);
    button->setObjectName(QString::fromLatin1(name));
    look::setToolTip(*button, toolTip);
    button->setAccessibleName(toolTip.section(QStringLiteral(" ("), 0, 0));
    button->setGeometry(x, kTop, kTall, kTall);
    connect(button, &QPushButton::clicked, this, [this, action] { (actions_.*action)(); });
    return button;
}

/// Made when it is first needed: loading the fonts of a text field would delay the first page.
look::TextField& FindBar::field() {
    if (field_)
        return *field_;
    field_ = new look::TextField(this);
    field_->setObjectName(QStringLiteral("findField"));
    field_->setFont(look::interfaceFont(look::kLabelPx));
    field_->setPlaceholderText(QStringLiteral("Rechercher dans la page"));
    field_->setAccessibleName(field_->placeholderText());
    field_->setMaxLength(kMaxTyped);
    field_->setGeometry(kField);
    field_->installEventFilter(this);
    connect(field_, &QLineEdit::textEdited, this, [this] { actions_.typed(); });
    // Behind the bar's last button, and then the buttons behind it.
    setTabOrder(this, field_);
    QWidget* before = field_;
    for (QPushButton* button : findChildren<QPushButton*>()) {
        setTabOrder(before, button);
        before = button;
    }
    field_->show();
    return *field_;
}

QString FindBar::text() const {
    return field_ ? field_->text() : QString();
}

void FindBar::setText(const QString& text) {
    field().setText(text);
}

void FindBar::takeKeyboard() {
    field().setFocus(Qt::ShortcutFocusReason);
    field().selectAll();
}

void FindBar::setStatus(const QString& words, bool found) {
    for (Button* button : {previous_, next_}) {
        if (button->hasFocus() && !found)
            field().setFocus();
        button->setEnabled(found);
    }
    if (words == status_->text())
        return;
    status_->setText(words);
    look::announce(*this, words);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    key->modifiers() & Qt::ShiftModifier ? actions_.previous() : actions_.next();
    return true;
}

void FindBar::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(kIvory));
    painter.fillRect(QRectF(0, 0, width(), crisp(painter)), QColor::fromRgb(kRule));
}

} // namespace viewer
