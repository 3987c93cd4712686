#include "projectile/launch_panel.h"

#include "common/formula_button.h"
#include "common/number_row.h"
#include "common/plain_label.h"
#include "common/segment_row.h"
#include "look/tool_tip.h"

#include <QButtonGroup>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>

namespace projectile {

namespace {

const look::Button::Look kSegment = {.kind = look::Button::Kind::Segment, .icon = {}};

} // namespace

LaunchPanel::LaunchPanel(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment), worlds_(new QButtonGroup(this)),
      drags_(new QButtonGroup(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    const auto add = [&](Parameter parameter) { layout->addWidget(row(parameter)); };
    layout->addWidget(common::heading(QStringLiteral("Lancement")));
    for (const Parameter parameter : {Parameter::Speed, Parameter::Angle, Parameter::Height})
        add(parameter);
    layout->addWidget(common::heading(QStringLiteral("Astre")));
    layout->addWidget(worlds());
    add(Parameter::Gravity);
    layout->addWidget(common::heading(QStringLiteral("Projectile")));
    add(Parameter::Mass);
    layout->addWidget(common::heading(QStringLiteral("Frottements de l’air")));
    layout->addWidget(drags());
    auto* factor = new QStackedWidget;
    noDrag_ = common::plainLabel(QStringLiteral("Seul le poids agit\u00A0: chute libre."),
                                 {.ink = look::kMuted});
    coefficient_ = row(Parameter::LinearCoefficient);
    diameter_ = row(Parameter::Diameter);
    for (QWidget* widget : {noDrag_, coefficient_, diameter_})
        factor->addWidget(widget);
    layout->addWidget(factor);
    experiment_.onChanged(
        [this, factor] { factor->setCurrentIndex(static_cast<int>(experiment_.launch().drag)); });
    factor->setCurrentIndex(static_cast<int>(experiment_.launch().drag));
    layout->addStretch(1);
    layout->addWidget(keepButtons());
    experiment_.onChanged([this] { show(); });
    experiment_.onKeptChanged([this] { show(); });
    show();
}

QWidget* LaunchPanel::row(Parameter parameter) {
    const Quantity& which = quantity(parameter);
    auto* added = new common::NumberRow(
        which, [this, parameter](double value) { experiment_.set(parameter, value); });
    const auto show = [this, added, &which] { added->show(experiment_.launch().*which.value); };
    experiment_.onChanged(show);
    show();
    // A number that the exercise gives cannot be changed.
    added->setEnabled(!experiment_.isLocked(parameter));
    return added;
}

QWidget* LaunchPanel::worlds() {
    for (std::size_t i = 0; i < kWorlds.size(); ++i) {
        const QString name = QString::fromUtf16(kWorlds.at(i).name);
        worlds_->addButton(new look::Button(name, kSegment, this), static_cast<int>(i));
    }
    connect(worlds_, &QButtonGroup::idClicked, this, [this](int which) {
        experiment_.setWorld(kWorlds.at(static_cast<std::size_t>(which)));
        show();
    });
    QWidget* buttons = common::segmentRow(worlds_);
    buttons->setEnabled(!experiment_.isLocked(Parameter::Gravity));
    return buttons;
}

QWidget* LaunchPanel::drags() {
    const auto add = [this](Drag drag, const QString& formula, const QString& spoken,
                            const QString& tip) {
        auto* button = new common::FormulaButton(formula, spoken, kSegment, this);
        look::setToolTip(*button, tip);
        drags_->addButton(button, static_cast<int>(drag));
    };
    add(Drag::None, QStringLiteral("\\text{aucun}"), QStringLiteral("aucun"),
        QStringLiteral("pas de frottement"));
    add(Drag::Linear, QStringLiteral("f = k v"), QStringLiteral("f = k v"),
        QStringLiteral("proportionnels à la vitesse\u00A0: corps très petits ou très lents"));
    add(Drag::Quadratic, QStringLiteral("f ∝ v^2"), QStringLiteral("f ∝ v²"),
        QStringLiteral("proportionnels au carré de la vitesse\u00A0: balles, ballons, pierres"));
    connect(drags_, &QButtonGroup::idClicked, this, [this](int which) {
        experiment_.setDrag(static_cast<Drag>(which));
        show();
    });
    QWidget* buttons = common::segmentRow(drags_);
    buttons->setEnabled(!experiment_.isDragLocked());
    return buttons;
}

QWidget* LaunchPanel::keepButtons() {
    keep_ = new look::Button(QStringLiteral("Garder la trajectoire"), {}, this);
    look::setToolTip(*keep_, QStringLiteral("la laisse dessinée, pour la comparer aux suivantes"));
    forget_ = new look::Button(QStringLiteral("Effacer"), {}, this);
    look::setToolTip(*forget_, QStringLiteral("efface les trajectoires gardées"));
    connect(keep_, &QPushButton::clicked, this, [this] { experiment_.keep(); });
    connect(forget_, &QPushButton::clicked, this, [this] { experiment_.forgetKept(); });
    auto* widget = new QWidget;
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    layout->addWidget(keep_, 1);
    layout->addWidget(forget_);
    return widget;
}

void LaunchPanel::show() {
    const Launch& launch = experiment_.launch();
    const std::optional<World> world = worldOf(launch);
    // A group that allows none has no way to say so but for the moment in which it is told.
    worlds_->setExclusive(false);
    for (QAbstractButton* button : worlds_->buttons())
        button->setChecked(world && button->text() == QStringView(world->name));
    worlds_->setExclusive(true);
    drags_->button(static_cast<int>(launch.drag))->setChecked(true);
    keep_->setEnabled(experiment_.canKeep());
    forget_->setEnabled(!experiment_.kept().empty());
}

} // namespace projectile
