#include "look/dress.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/program_icon.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableView>

namespace look {

namespace {

/// The fields and the buttons of a dialog's foot; what is painted by hand stays as it is. Numbers
/// are logical pixels.
constexpr char16_t kForms[] = uR"(
QComboBox, QAbstractSpinBox, QLineEdit {
    background: %paper; color: %ink; border: 1px solid %edge; border-radius: 3px;
    padding: 0 6px; min-height: 28px; selection-background-color: %blue; }
QComboBox:focus, QAbstractSpinBox:focus, QLineEdit:focus {
    border: 2px solid %blue; padding: 0 5px; min-height: 26px; }
QAbstractSpinBox:disabled { background: %ivory; color: %muted; border-color: %rule; }
QComboBox QAbstractItemView {
    background: %paper; border: 1px solid %edge; outline: none;
    selection-background-color: %pressed; selection-color: %ink; }
QComboBox QAbstractItemView::item { min-height: 24px; padding: 0 5px; }
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

constexpr char16_t kSlider[] = uR"(
QSlider { min-height: 18px; }
QSlider::groove:horizontal { height: 4px; background: %rule; border-radius: 2px; }
QSlider::sub-page:horizontal { background: %blue; border-radius: 2px; }
QSlider::handle:horizontal {
    width: 14px; height: 14px; margin: -6px 0; border-radius: 8px;
    background: %paper; border: 1px solid %blue; }
QSlider::handle:horizontal:hover { background: %tint; }
QSlider::handle:horizontal:focus { border: 3px solid %blue; width: 10px; height: 10px; }
QSlider::sub-page:horizontal:disabled { background: %edge; }
QSlider::handle:horizontal:disabled { border-color: %edge; background: %ivory; }
)";

constexpr char16_t kTabs[] = uR"(
QTabWidget::pane { background: %paper; border: 1px solid %rule; top: -1px; }
QTabBar::tab {
    color: %blue; background: transparent; padding: 6px 14px; margin-right: 2px;
    border: 1px solid transparent; border-bottom: none; }
QTabBar::tab:hover { background: %tint; }
QTabBar::tab:selected {
    background: %paper; color: %ink; font-weight: bold; border-color: %rule; }
QTabBar:focus { outline: none; }
QTabBar::tab:selected:focus { border-top: 2px solid %blue; }
)";

constexpr char16_t kTable[] = uR"(
QTableView {
    background: %paper; border: none; gridline-color: %grid;
    selection-background-color: %pressed; selection-color: %ink; }
)";

QString rulesOf(const char16_t* forms) {
    QString rules = QString::fromUtf16(forms);
    const std::pair<const char*, QRgb> colours[] = {
        {"%paper", kPaper},    {"%ink", kInk},     {"%edge", kEdge},
        {"%blue", kBlue},      {"%muted", kMuted}, {"%pressed", kPressedTint},
        {"%tint", kHoverTint}, {"%ivory", kIvory}, {"%rule", kRule},
        {"%grid", kGrid}};
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

template <class Control>
void dressEach(const QWidget& window, const QString& rules) {
    for (auto* control : window.findChildren<Control*>())
        control->setStyleSheet(rules);
}

} // namespace

void dressApplication() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(colours(QApplication::palette()));
    QApplication::setFont(interfaceFont(kLabelPx));
    QApplication::setWindowIcon(programIcon());
}

void dress(QWidget& window) {
    window.setPalette(colours(window.palette()));
    window.setFont(interfaceFont(kLabelPx));
    // Each control by itself: below a window with rules, what is painted by hand and what shows
    // mnemonics would lose its own style.
    const QString rules = rulesOf(kForms);
    for (auto* list : window.findChildren<QComboBox*>()) {
        // The toolkit's own paints the lines as those of a menu, in colours that no rule reaches.
        list->setItemDelegate(new QStyledItemDelegate(list));
        list->setStyleSheet(rules);
    }
    dressEach<QAbstractSpinBox>(window, rules);
    if (qobject_cast<QFileDialog*>(&window))
        dressEach<QLineEdit>(window, rules);
    dressEach<QSlider>(window, rulesOf(kSlider));
    dressEach<QTabWidget>(window, rulesOf(kTabs));
    dressEach<QTableView>(window, rulesOf(kTable));
    for (const auto* box : window.findChildren<QDialogButtonBox*>())
        for (QAbstractButton* button : box->buttons()) {
            button->setIcon({}); // ours have words
            button->setStyleSheet(rules);
        }
}

} // namespace look
