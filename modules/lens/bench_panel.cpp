#include "lens/bench_panel.h"

#include "common/number_row.h"
#include "common/plain_label.h"
#include "common/segment_row.h"
#include "look/button.h"
#include "look/tool_tip.h"

#include <QButtonGroup>
#include <QVBoxLayout>

namespace lens {

namespace {

const look::Button::Look kSegment = {.kind = look::Button::Kind::Segment, .icon = {}};

} // namespace

BenchPanel::BenchPanel(Bench& bench, QWidget* parent) : QWidget(parent), bench_(bench) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(common::heading(QStringLiteral("Objet")));
    layout->addWidget(row(Parameter::Distance));
    layout->addWidget(row(Parameter::Height));
    layout->addWidget(common::heading(QStringLiteral("Lentille")));
    kindRow_ = kinds();
    layout->addWidget(kindRow_);
    focalLength_ = row(Parameter::FocalLength);
    layout->addWidget(focalLength_);
    unknown_ = common::paragraph(QStringLiteral("Lentille inconnue\u00A0: à vous de la mesurer."),
                                 {.ink = look::kMuted});
    layout->addWidget(unknown_);
    layout->addWidget(common::heading(QStringLiteral("Écran")));
    layout->addWidget(row(Parameter::Screen));
    focus_ = new look::Button(QStringLiteral("Mettre au point"), {}, this);
    look::setToolTip(*focus_, QStringLiteral("met l’écran là où l’image est nette"));
    connect(focus_, &QPushButton::clicked, this, [this] { bench_.focus(); });
    layout->addWidget(focus_);
    layout->addStretch(1);
    layout->addWidget(measureButtons());
    bench_.onChanged([this] { show(); });
    bench_.onMeasured([this] { show(); });
    show();
}

common::NumberRow* BenchPanel::row(Parameter parameter) {
    const Quantity& which = quantity(parameter);
    auto* added = new common::NumberRow(
        which, [this, parameter](double value) { bench_.set(parameter, value); });
    const auto show = [this, added, &which] { added->show(bench_.arrangement().*which.value); };
    bench_.onChanged(show);
    show();
    // A number that the exercise gives cannot be changed.
    added->setEnabled(!bench_.isLocked(parameter));
    return added;
}

QWidget* BenchPanel::kinds() {
    kinds_ = new QButtonGroup(this);
    for (const auto& [kind, caption] : {std::pair(Kind::Converging, QStringLiteral("convergente")),
                                        std::pair(Kind::Diverging, QStringLiteral("divergente"))})
        kinds_->addButton(new look::Button(caption, kSegment, this), static_cast<int>(kind));
    connect(kinds_, &QButtonGroup::idClicked, this,
            [this](int which) { bench_.setKind(static_cast<Kind>(which)); });
    QWidget* buttons = common::segmentRow(kinds_);
    buttons->setEnabled(!bench_.isLocked(Parameter::FocalLength));
    return buttons;
}

QWidget* BenchPanel::measureButtons() {
    measure_ = new look::Button(QStringLiteral("Noter la mesure"), {}, this);
    forget_ = new look::Button(QStringLiteral("Effacer"), {}, this);
    look::setToolTip(*forget_, QStringLiteral("efface les mesures notées"));
    connect(measure_, &QPushButton::clicked, this, [this] { bench_.measure(); });
    connect(forget_, &QPushButton::clicked, this, [this] { bench_.forgetMeasures(); });
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    layout->addWidget(measure_, 1);
    layout->addWidget(forget_);
    return widget;
}

void BenchPanel::show() {
    const Arrangement& arrangement = bench_.arrangement();
    kinds_->button(static_cast<int>(arrangement.kind))->setChecked(true);
    const bool diverging = arrangement.kind == Kind::Diverging;
    focalLength_->setName(diverging ? QStringLiteral("\\text{Distance focale }−f\u200A′")
                                    : QStringLiteral("\\text{Distance focale }f\u200A′"),
                          QStringLiteral("Distance focale"));
    focalLength_->setVisible(!bench_.hidesLens());
    kindRow_->setVisible(!bench_.hidesLens());
    unknown_->setVisible(bench_.hidesLens());
    focus_->setEnabled(bench_.canFocus());
    measure_->setEnabled(bench_.canMeasure());
    look::setToolTip(*measure_, bench_.isSharp()
                                    ? QStringLiteral("ajoute une ligne à l’onglet Mesures")
                                    : QStringLiteral("quand l’image est nette sur l’écran"));
    forget_->setEnabled(!bench_.measures().empty());
}

} // namespace lens
