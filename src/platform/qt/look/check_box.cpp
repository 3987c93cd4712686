#include "platform/qt/look/check_box.h"

#include "platform/qt/look/choice_sign.h"
#include "platform/qt/look/interface_font.h"
#include "platform/qt/look/palette.h"

#include <QPainter>
#include <QStyle>

namespace platform::look {

namespace {

constexpr int kCaptionLeft = 20;
constexpr int kHeight = 20;

} // namespace

CheckBox::CheckBox(const QString& caption, QWidget* parent) : QCheckBox(caption, parent) {
    setFont(interfaceFont(kLabelPx));
    setAttribute(Qt::WA_Hover);
    setAccessibleName(QString(caption).remove(u'&'));
}

QSize CheckBox::sizeHint() const {
    const int words = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return {kCaptionLeft + words + kChoiceSignMargin, kHeight};
}

void CheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double half = kChoiceSignPx / 2.0;
    paintCheckSign(painter, {half, height() / 2.0}, *this);
    painter.setFont(font());
    painter.setPen(QColor::fromRgb(isEnabled() ? kInk : kEdge));
    const int mnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this)
                             ? Qt::TextShowMnemonic
                             : Qt::TextHideMnemonic;
    painter.drawText(rect().adjusted(kCaptionLeft, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | mnemonic, text());
}

} // namespace platform::look
