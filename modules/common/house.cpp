#include "common/house.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>

#include <array>
#include <utility>

namespace common {

namespace {

/// Names in capitals are colours of the palette.
constexpr const char* kStyleSheet = R"(
QWidget { color: INK; }
QMainWindow, QDialog { background: IVORY; }
QToolTip { background: PAPER; color: INK; border: 1px solid RULE; padding: 3px; }

QPushButton { background: PAPER; color: BLUE; border: 1px solid EDGE; border-radius: 4px;
    min-height: 30px; padding: 0 14px; }
QPushButton:hover { background: HOVER; border-color: BLUE; }
QPushButton:focus { border: 2px solid BLUE; padding: 0 13px; min-height: 28px; }
QPushButton:pressed { background: PRESSED; }
QPushButton:disabled { background: IVORY; color: EDGE; border-color: RULE; }
QPushButton[main="true"] { background: BLUE; color: PAPER; border-color: BLUE; }
QPushButton[main="true"]:hover { background: #2a629f; }
QPushButton[main="true"]:focus { border: 2px solid #9dbfe4; }
QPushButton[main="true"]:pressed { background: #163d6c; }
QPushButton[main="true"]:disabled { background: #e9e5d9; color: EDGE; border-color: RULE; }
QPushButton[segment="true"] { min-height: 24px; padding: 0 2px; border-radius: 3px; }
QPushButton[segment="true"]:focus { min-height: 22px; }
QPushButton[segment="true"]:checked { background: BLUE; color: PAPER; border-color: BLUE; }
QPushButton[segment="true"]:checked:focus { border: 2px solid #9dbfe4; }
QPushButton[segment="true"]:checked:disabled { background: #e9e5d9; color: MUTED;
    border-color: RULE; }

QLineEdit, QDoubleSpinBox, QComboBox { background: PAPER; border: 1px solid EDGE;
    border-radius: 3px; padding: 0 6px; min-height: 24px; selection-background-color: BLUE;
    selection-color: PAPER; }
QLineEdit:focus, QDoubleSpinBox:focus, QComboBox:focus { border: 2px solid BLUE; padding: 0 5px;
    min-height: 22px; }
QLineEdit:disabled, QDoubleSpinBox:disabled { background: IVORY; color: MUTED;
    border-color: RULE; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/house/down.svg); width: 10px; height: 10px; }
QComboBox QAbstractItemView { background: PAPER; border: 1px solid EDGE;
    selection-background-color: BLUE; selection-color: PAPER; }

QSlider { min-height: 20px; }
QSlider::groove:horizontal { height: 4px; background: RULE; border-radius: 2px; }
QSlider::sub-page:horizontal { background: BLUE; border-radius: 2px; }
QSlider::handle:horizontal { width: 14px; height: 14px; margin: -6px 0; border-radius: 8px;
    background: PAPER; border: 1px solid BLUE; }
QSlider::handle:horizontal:hover { background: HOVER; }
QSlider::handle:horizontal:focus { border: 3px solid BLUE; width: 10px; height: 10px; }
QSlider::sub-page:horizontal:disabled { background: EDGE; }
QSlider::handle:horizontal:disabled { border-color: EDGE; background: IVORY; }

QCheckBox { spacing: 6px; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid EDGE; border-radius: 3px;
    background: PAPER; }
QCheckBox::indicator:hover { border-color: BLUE; background: HOVER; }
QCheckBox::indicator:focus { border: 2px solid BLUE; width: 12px; height: 12px; }
QCheckBox::indicator:checked { image: url(:/house/check.svg); background: BLUE;
    border-color: BLUE; }
QCheckBox::indicator:checked:focus { border: 2px solid #9dbfe4; }

QTabWidget::pane { background: PAPER; border: 1px solid RULE; top: -1px; }
QTabBar::tab { color: BLUE; background: transparent; padding: 6px 14px; margin-right: 2px;
    border: 1px solid transparent; border-bottom: none; }
QTabBar::tab:hover { background: HOVER; }
QTabBar::tab:selected { background: PAPER; color: INK; font-weight: bold;
    border-color: RULE; }
QTabBar:focus { outline: none; }
QTabBar::tab:selected:focus { border-top: 2px solid BLUE; }

QTableView { background: PAPER; border: none; gridline-color: GRID;
    selection-background-color: PRESSED; selection-color: INK; }
QHeaderView::section { background: IVORY; border: none; border-right: 1px solid GRID;
    border-bottom: 1px solid RULE; padding: 4px; font-weight: bold; }
QScrollArea { background: transparent; border: none; }
QScrollBar:vertical { background: #f1eddf; width: 12px; }
QScrollBar::handle:vertical { background: EDGE; min-height: 24px; border-radius: 4px;
    margin: 2px; }
QScrollBar:horizontal { background: #f1eddf; height: 12px; }
QScrollBar::handle:horizontal { background: EDGE; min-width: 24px; border-radius: 4px;
    margin: 2px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QString styleSheet() {
    constexpr std::array<std::pair<const char*, QRgb>, 10> kNames = {{
        {"IVORY", kIvory},
        {"PAPER", kPaper},
        {"INK", kInk},
        {"MUTED", kMuted},
        {"EDGE", kEdge},
        {"RULE", kRule},
        {"GRID", kGrid},
        {"BLUE", kBlue},
        {"HOVER", kHoverTint},
        {"PRESSED", kPressedTint},
    }};
    QString sheet = QString::fromLatin1(kStyleSheet);
    for (const auto& [name, colour] : kNames)
        sheet.replace(QLatin1String(name), QColor::fromRgb(colour).name());
    return sheet;
}

QPalette palette() {
    QPalette colours(QColor::fromRgb(kPaper), QColor::fromRgb(kIvory));
    colours.setColor(QPalette::Base, QColor::fromRgb(kPaper));
    colours.setColor(QPalette::Highlight, QColor::fromRgb(kBlue));
    colours.setColor(QPalette::HighlightedText, QColor::fromRgb(kPaper));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(role, QColor::fromRgb(kInk));
    colours.setColor(QPalette::PlaceholderText, QColor::fromRgb(kMuted));
    return colours;
}

} // namespace

QFont houseFont(int pixels, bool bold) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

void applyHouse(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    // The same on every desktop, dark ones included.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    QApplication::setFont(houseFont());
    application.setStyleSheet(styleSheet());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/house/orvalente.svg")));
}

void paintVerdict(QPainter& painter, double x, double y, Verdict verdict) {
    const bool right = verdict == Verdict::Right;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(x, y);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(right ? kGreen : kRed));
    if (right)
        painter.drawEllipse(QRectF(0, 0, 16, 16));
    else
        painter.drawRoundedRect(QRectF(0, 0, 16, 16), 3, 3);
    painter.setPen(QPen(QColor::fromRgb(kPaper), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (right) {
        painter.drawPolyline(QPolygonF({{4.5, 8.5}, {7, 11}, {11.5, 5.5}}));
    } else {
        painter.drawLine(QPointF(5, 5), QPointF(11, 11));
        painter.drawLine(QPointF(11, 5), QPointF(5, 11));
    }
    painter.restore();
}

} // namespace common
