#include "exercises/verdict_line.h"

#include "exercises/mark_picture.h"
#include "look/accessible_role.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/tool_tip.h"

#include <QPainter>

namespace exercises {

namespace {

constexpr int kMarkPx = 16;
constexpr int kWordsLeft = kMarkPx + 6;

QString wordsOf(const Verdict& verdict) {
    if (verdict.right)
        return QStringLiteral("Réponse juste");
    if (verdict.expected.empty())
        return QStringLiteral("Réponse fausse");
    return QStringLiteral("Faux. Réponse attendue\u00A0: ") +
           QString::fromStdU16String(verdict.expected).simplified();
}

} // namespace

VerdictLine::VerdictLine(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::StaticText);
    setObjectName(QStringLiteral("verdict"));
    setFont(look::interfaceFont(look::kLabelPx, look::Weight::Bold));
    hide();
}

void VerdictLine::setVerdict(const std::optional<Verdict>& verdict) {
    setVisible(verdict.has_value());
    if (!verdict)
        return;
    right_ = verdict->right;
    mark_.emplace(markName(right_ ? Mark::InSolution : Mark::NotInSolution));
    words_ = wordsOf(*verdict);
    setAccessibleName(words_);
    const bool fits = fontMetrics().horizontalAdvance(words_) <= width() - kWordsLeft;
    look::setToolTip(*this, fits ? QString() : words_);
    update();
}

void VerdictLine::paintEvent(QPaintEvent*) {
    if (!mark_)
        return;
    QPainter painter(this);
    mark_->paint(painter, QRectF(0, (height() - kMarkPx) / 2.0, kMarkPx, kMarkPx),
                 look::Icon::Style::Coloured);
    const QRect place = rect().adjusted(kWordsLeft, 0, 0, 0);
    painter.setFont(font());
    painter.setPen(QColor::fromRgb(right_ ? look::kGreen : look::kRed));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(words_, Qt::ElideRight, place.width()));
}

} // namespace exercises
