#include "viewer/rail.h"

#include "look/button.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/picture_box.h"
#include "look/tool_tip.h"

#include <QLabel>
#include <QPainter>

namespace viewer {

namespace {

using look::Button;

// From the rail's top left corner, which is at 8,72 of the window, at its full height.
constexpr int kHeight = 520;
constexpr QRectF kMark(0, 4, 24, 24);
constexpr QPointF kName(32, 21); ///< left end of the foot of the letters
constexpr QRect kIllustration(0, 40, 152, 360);
constexpr QRect kReturnToTest(0, 408, 152, 48);
constexpr QRect kReturnWords(44, 8, 100, 32); ///< within the button
constexpr QRect kBack(0, 464, 72, 56);
constexpr QRect kForward(80, 464, 72, 56);

Button* addHistoryButton(const QString& name, const QString& caption, const QString& toolTip,
                         const QString& icon, const QString& keys, QWidget* parent) {
    auto* button = new Button(
        caption, {.kind = Button::Kind::Ordinary, .icon = icon, .place = Button::IconPlace::Top},
        parent);
    button->setObjectName(name);
    look::setToolTip(*button, toolTip, keys);
    button->setAccessibleDescription(toolTip);
    button->setEnabled(false);
    return button;
}

} // namespace

Rail::Rail(QWidget* parent) : QWidget(parent) {
    const QString words = QStringLiteral("Retrouver le test");
    auto* btexo = new Button(words,
                             {.kind = Button::Kind::Main,
                              .icon = QStringLiteral("back-to-test"),
                              .weight = look::Weight::Bold},
                             this);
    btexo->setObjectName(QStringLiteral("btexo"));
    btexo_ = btexo;
    btexo_->setGeometry(kReturnToTest);
    // The button paints the words, so that they follow its states; the label lies over them, and
    // what is clicked on it reaches the button.
    auto* Label16 = new QLabel(btexo);
    Label16->setTextFormat(Qt::PlainText);
    Label16_ = Label16;
    Label16_->setObjectName(QStringLiteral("Label16"));
    Label16_->setAccessibleName(words);
    Label16_->setGeometry(kReturnWords);
    setReturnToTestVisible(false);

    addHistoryButton(QStringLiteral("avant"), QStringLiteral("&Précédent"),
                     QStringLiteral("Page précédente"), QStringLiteral("previous-page"),
                     QStringLiteral("Alt + ←"), this)
        ->setGeometry(kBack);
    addHistoryButton(QStringLiteral("apres"), QStringLiteral("S&uivant"),
                     QStringLiteral("Page suivante"), QStringLiteral("next-page"),
                     QStringLiteral("Alt + →"), this)
        ->setGeometry(kForward);
}

void Rail::setIllustration(look::PictureBox* illustration) {
    illustration->setParent(this);
    illustration->setInset(1);
    illustration->setGeometry(kIllustration);
}

void Rail::setReturnToTestVisible(bool visible) {
    btexo_->setVisible(visible);
    Label16_->setVisible(visible);
}

void Rail::paintEvent(QPaintEvent*) {
    using namespace look;
    QPainter painter(this);
    mark_.paint(painter, kMark, Icon::Style::Coloured);
    painter.setPen(QColor::fromRgb(kBlue));
    painter.setFont(interfaceFont(kLabelPx, Weight::Bold));
    painter.drawText(kName, QStringLiteral("Orvalente"));
}

} // namespace viewer
