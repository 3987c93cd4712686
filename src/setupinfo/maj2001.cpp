#include "setupinfo/maj2001.h"

#include "look/button.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/spaced_label.h"

#include <QPainter>

namespace setupinfo {

namespace {

// In pixels. What stands below the description moves down when that takes more lines than usual.
constexpr int kWidth = 480;
constexpr int kEdge = 8;
constexpr int kPanelTop = 64;
constexpr int kPanelRadius = 4;
constexpr int kMargin = 24;
constexpr int kTextTop = 82;
constexpr int kLineHeight = 22;
constexpr int kBaseline = 16; ///< in a line
constexpr int kAboveRule = 31;
constexpr int kRuleToButtons = 21;
constexpr int kButtonHeight = 32;
constexpr int kBelowButtons = 28;
constexpr QPoint kTitlePen(24, 44);

constexpr int kBrightest = 255;

/// 18 points in pixels of 96 to the inch.
constexpr int kTitleFontPx = 24;

QFont titleFont() {
    QFont font;
    // The second is as wide as the first, and there where the first is not.
    font.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(kTitleFontPx);
    font.setBold(true);
    return font;
}

} // namespace

Maj2001::Maj2001(const Installation& installation, const QString& installDir,
                 platform::ProcessStarter& starter, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      installDir_(installDir), starter_(starter) {
    setObjectName(QStringLiteral("maj2001"));
    setWindowTitle(QStringLiteral("Mise à jour"));
    Form_Load(installation);

    const int top = Label1_->geometry().bottom() + 1 + kAboveRule + kRuleToButtons;
    const QSize wide(144, kButtonHeight);
    auto* Command1 = addButton(QStringLiteral("Command1"), QStringLiteral("Lancer l’&installation"),
                               false, {QPoint(kMargin, top), wide});
    auto* Command2 = addButton(QStringLiteral("Command2"), QStringLiteral("Lancer la &mise à jour"),
                               false, {QPoint(176, top), wide});
    auto* Command3 = addButton(QStringLiteral("Command3"), QStringLiteral("&Fermer"), true,
                               {QPoint(352, top), QSize(104, kButtonHeight)});
    connect(Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
    Command3->setDefault(true);
    Command3->setFocus();
    setFixedSize(kWidth, top + kButtonHeight + kBelowButtons);
    new look::MnemonicDisplay(this);
}

void Maj2001::Form_Load(const Installation& installation) {
    const QString text = installationText(installation);
    constexpr int kTextWidth = kWidth - 2 * kMargin;
    Label1_ = new look::SpacedLabel(kLineHeight, kBaseline, this);
    Label1_->setObjectName(QStringLiteral("Label1"));
    Label1_->setText(text);
    Label1_->setGeometry(kMargin, kTextTop, kTextWidth, Label1_->heightForWidth(kTextWidth));
    setAccessibleDescription(text);
}

look::Button* Maj2001::addButton(const QString& name, const QString& caption, bool isMain,
                                 const QRect& place) {
    const auto kind = isMain ? look::Button::Kind::Main : look::Button::Kind::Ordinary;
    auto* button = new look::Button(caption, {.kind = kind, .icon = {}}, this);
    button->setObjectName(name);
    button->setGeometry(place);
    return button;
}

void Maj2001::Command1_Click() {
    starter_.startMaximized(installDir_ + QStringLiteral("INSTALLKX.EXE"));
}

void Maj2001::Command2_Click() {
    starter_.startMaximized(installDir_ + QStringLiteral("MAJKX.EXE"));
}

void Maj2001::Command3_Click() {
    accept();
}

void Maj2001::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Form_Paint(painter);
    const QRectF panel(kEdge, kPanelTop, width() - 2 * kEdge, height() - kPanelTop - kEdge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(look::kIvory));
    painter.drawRoundedRect(panel, kPanelRadius, kPanelRadius);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int rule = Label1_->geometry().bottom() + 1 + kAboveRule;
    painter.fillRect(QRectF(panel.left(), rule, panel.width(), look::crisp(painter)),
                     QColor::fromRgb(look::kRule));
}

/// Black at the top, the brightest blue at the foot.
void Maj2001::Form_Paint(QPainter& painter) const {
    for (int y = 0; y < height(); ++y)
        painter.fillRect(0, y, width(), 1, QColor(0, 0, kBrightest * y / (height() - 1)));
    painter.setFont(titleFont());
    painter.setPen(Qt::white);
    painter.drawText(kTitlePen, QStringLiteral("Mise à jour du logiciel"));
}

} // namespace setupinfo
