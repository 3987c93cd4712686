#include "reaction/mixture_panel.h"

#include "common/number_row.h"
#include "common/plain_label.h"
#include "common/qt_text.h"
#include "look/button.h"
#include "look/tool_tip.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace reaction {

MixturePanel::MixturePanel(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(common::heading(QStringLiteral("Réaction")));
    layout->addWidget(reactions());
    layout->addWidget(common::heading(QStringLiteral("Quantités initiales")));
    for (std::size_t i = 0; i < kReactants; ++i) {
        rows_.at(i) = row(i);
        layout->addWidget(rows_.at(i));
    }
    balance_ = new look::Button(QStringLiteral("Mélange stœchiométrique"), {}, this);
    look::setToolTip(*balance_,
                     QStringLiteral("change la quantité d’un réactif pour que rien ne reste"));
    connect(balance_, &QPushButton::clicked, this, [this] { experiment_.balance(); });
    layout->addWidget(balance_);
    layout->addStretch(1);
    layout->addWidget(common::paragraph(
        QStringLiteral("La réaction est supposée totale\u00A0: elle s’arrête quand un réactif est "
                       "épuisé."),
        {.ink = look::kMuted}));
    experiment_.onChanged([this] { show(); });
    show();
}

QWidget* MixturePanel::reactions() {
    reactions_ = new QComboBox;
    for (const Reaction& one : kReactions)
        reactions_->addItem(QString::fromUtf16(one.name));
    reactions_->setAccessibleName(QStringLiteral("Réaction"));
    reactions_->setEnabled(!experiment_.hasExercise());
    connect(reactions_, &QComboBox::currentIndexChanged, this, [this](int which) {
        experiment_.setReaction(kReactions.at(static_cast<std::size_t>(which)));
    });
    return reactions_;
}

common::NumberRow* MixturePanel::row(std::size_t reactant) {
    auto* added = new common::NumberRow(
        kAmount, [this, reactant](double amount) { experiment_.setInitial(reactant, amount); });
    added->setEnabled(!experiment_.isLocked(reactant));
    return added;
}

void MixturePanel::show() {
    const Reaction& reaction = experiment_.reaction();
    {
        const QSignalBlocker blocker(reactions_);
        reactions_->setCurrentText(QString::fromUtf16(reaction.name));
    }
    for (std::size_t i = 0; i < kReactants; ++i) {
        const Species& species = reaction.reactant(i);
        const QString name = QString::fromUtf16(species.name);
        rows_.at(i)->setName(
            QStringLiteral("\\text{%1 }%2").arg(name, common::qtText(formulaOf(species.formula))),
            QStringLiteral("Quantité initiale, ") + name);
        rows_.at(i)->show(experiment_.mixture().initial.at(i));
    }
    balance_->setEnabled(experiment_.canBalance());
}

} // namespace reaction
