#include "look/dress.h"

#include "look/icon.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

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

constexpr char16_t kFiles[] = uR"(
QAbstractItemView {
    background: %paper; color: %ink; border: 1px solid %edge; outline: none;
    selection-background-color: %pressed; selection-color: %ink; }
QAbstractItemView:focus { border-color: %blue; }
QAbstractItemView::item { min-height: 24px; }
)";

constexpr char16_t kTool[] = uR"(
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; }
QToolButton:hover, QToolButton:focus { background: %tint; border-color: %blue; }
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

/// All of a palette: nothing of the desktop's is left, whose lines and shadows may be made for a
/// dark one.
QPalette colours() {
    QPalette palette(QColor::fromRgb(kIvory), QColor::fromRgb(kIvory));
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {{QPalette::Window, kIvory},
                                                          {QPalette::Base, kPaper},
                                                          {QPalette::AlternateBase, kIvory},
                                                          {QPalette::Button, kIvory},
                                                          {QPalette::WindowText, kInk},
                                                          {QPalette::Text, kInk},
                                                          {QPalette::ButtonText, kInk},
                                                          {QPalette::PlaceholderText, kMuted},
                                                          {QPalette::Highlight, kBlue},
                                                          {QPalette::HighlightedText, kPaper},
                                                          {QPalette::Link, kBlue},
                                                          {QPalette::LinkVisited, kBlue},
                                                          {QPalette::ToolTipBase, kPaper},
                                                          {QPalette::ToolTipText, kInk},
                                                          {QPalette::Mid, kRule},
                                                          {QPalette::Dark, kEdge}};
    for (const auto& [role, colour] : roles)
        palette.setColor(role, QColor::fromRgb(colour));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(kEdge));
    return palette;
}

template <class Control>
void dressEach(const QWidget& window, const QString& rules) {
    for (auto* control : window.findChildren<Control*>())
        control->setStyleSheet(rules);
}

QIcon drawn(const QString& name, int pixels) {
    constexpr double kDensest = 3; // made smaller on coarser screens
    QPixmap picture(QSize(1, 1) * qRound(pixels * kDensest));
    picture.setDevicePixelRatio(kDensest);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    Icon(name).paint(painter, QRectF(0, 0, pixels, pixels), Icon::Style::Coloured);
    return picture;
}

/// The toolkit's buttons have drawings of their own, and its lists borders of their style.
void dressFileDialog(QFileDialog& dialog) {
    constexpr int kIcon = 24;
    constexpr int kButton = 32;
    const std::pair<const char*, const char*> icons[] = {{"backButton", "previous-page"},
                                                         {"forwardButton", "next-page"},
                                                         {"toParentButton", "parent-folder"},
                                                         {"newFolderButton", "new-folder"}};
    for (const auto& [name, icon] : icons)
        if (auto* button = dialog.findChild<QToolButton*>(QLatin1String(name))) {
            button->setIcon(drawn(QLatin1String(icon), kIcon));
            button->setIconSize({kIcon, kIcon});
            button->setFixedSize(kButton, kButton);
            button->setStyleSheet(rulesOf(kTool));
            setToolTip(*button, button->toolTip());
        }
    for (const char* name : {"listModeButton", "detailModeButton"}) // one way to show them will do
        if (auto* button = dialog.findChild<QToolButton*>(QLatin1String(name)))
            button->hide();
    dressEach<QAbstractItemView>(dialog, rulesOf(kFiles));
}

} // namespace

void dressApplication() {
    const QString style = QStringLiteral("fusion");
    if (QApplication::style()->name() != style) // as it is without a desktop's theme
        QApplication::setStyle(QStyleFactory::create(style));
    QApplication::setPalette(colours());
    QApplication::setFont(interfaceFont(kLabelPx));
}

void dress(QWidget& window) {
    window.setPalette(colours());
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
    if (auto* files = qobject_cast<QFileDialog*>(&window)) {
        dressEach<QLineEdit>(window, rules);
        dressFileDialog(*files);
    }
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
