#include "look/dress.h"

#include "look/interface_font.h"
#include "look/palette.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QSpinBox>

namespace look {

namespace {

/// The fields and the buttons of a dialog's foot; what is painted by hand stays as it is. Numbers
/// are logical pixels.
constexpr char16_t kForms[] = uR"(
QComboBox, QSpinBox, QLineEdit {
    background: %paper; color: %ink; border: 1px solid %edge; border-radius: 3px;
    padding: 0 6px; min-height: 28px; selection-background-color: %blue; }
QComboBox:focus, QSpinBox:focus, QLineEdit:focus {
    border: 2px solid %blue; padding: 0 5px; min-height: 26px; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow, QSpinBox::down-arrow {
    image: url(:/look/icons/down.svg); width: 12px; height: 12px; }
QSpinBox::up-arrow { image: url(:/look/icons/up.svg); width: 12px; height: 12px; }
QSpinBox::up-button, QSpinBox::down-button { border: none; background: none; width: 18px; }
QPushButton {
    background: %paper; color: %blue; border: 1px solid %edge; border-radius: 4px;
    min-width: 94px; min-height: 30px; }
QPushButton:hover { background: %tint; border-color: %blue; }
QPushButton:focus { border: 2px solid %blue; min-width: 92px; min-height: 28px; }
QPushButton:disabled {
    background: %ivory; color: %edge; border-color: %rule; }
)";

QString forms() {
    QString rules = QString::fromUtf16(kForms);
    const std::pair<const char*, QRgb> colours[] = {
        {"%paper", kPaper},    {"%ink", kInk},     {"%edge", kEdge}, {"%blue", kBlue},
        {"%tint", kHoverTint}, {"%ivory", kIvory}, {"%rule", kRule}};
    for (const auto& [name, colour] : colours)
        rules.replace(QLatin1String(name), QColor::fromRgb(colour).name());
    return rules;
}

QPalette colours(QPalette palette) {
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {
        {QPalette::Window, kIvory},        {QPalette::Base, kPaper},
        {QPalette::AlternateBase, kIvory}, {QPalette::Button, kIvory},
        {QPalette::WindowText, kInk},      {QPalette::Text, kInk},
        {QPalette::ButtonText, kInk},      {QPalette::PlaceholderText, kMuted},
        {QPalette::Highlight, kBlue},      {QPalette::HighlightedText, kPaper}};
    for (const auto& [role, colour] : roles)
        palette.setColor(role, QColor::fromRgb(colour));
    return palette;
}

} // namespace

void dress(QWidget& dialog) {
    dialog.setPalette(colours(dialog.palette()));
    dialog.setFont(interfaceFont(kLabelPx));
    // Each control by itself: below a window with rules, what is painted by hand and what shows
    // mnemonics would lose its own style.
    const QString rules = forms();
    for (auto* field : dialog.findChildren<QComboBox*>())
        field->setStyleSheet(rules);
    for (auto* field : dialog.findChildren<QSpinBox*>())
        field->setStyleSheet(rules);
    if (qobject_cast<QFileDialog*>(&dialog))
        for (auto* field : dialog.findChildren<QLineEdit*>())
            field->setStyleSheet(rules);
    for (const auto* box : dialog.findChildren<QDialogButtonBox*>())
        for (QAbstractButton* button : box->buttons()) {
            button->setIcon({}); // ours have words
            button->setStyleSheet(rules);
        }
}

} // namespace look
