#include "common/control_panel.h"
#include "common/french_number.h"
#include "common/number_row.h"
#include "common/qt_text.h"
#include "common/words.h"
#include "lens/controls.h"
#include "modules/shipped_exercises.h"
#include "projectile/controls.h"
#include "reaction/controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using common::Control;
using common::Controls;
using common::qtText;
using Kind = common::Control::Kind;

namespace {

using Lines = std::vector<std::string>;

/// A control in a line, as somebody would tell of it: a heading after "#", a number with its ends
/// and step, what is taken in brackets.
std::string told(const Control& control) {
    std::u16string line = (control.kind == Kind::Heading ? u"# " : u"") + control.name;
    const common::Number& number = control.number;
    if (control.kind == Kind::Number) {
        for (const double value : {control.value, number.least, number.most, number.step})
            line += u' ' + common::frenchDigits(value, 3);
        line += common::unitBehind(number.unit) + u": " + control.formula;
    }
    for (std::size_t i = 0; i < control.options.size(); ++i) {
        const bool isTaken = static_cast<double>(i) == control.value;
        line += common::filled(isTaken ? u", [%1]" : u", %1", {control.options[i].words});
    }
    if (!control.hint.empty())
        line += u": " + control.hint;
    return qtText(line).toStdString();
}

Lines told(const Controls& controls) {
    Lines all;
    for (const Control& one : controls)
        if (one.isShown)
            all.push_back(told(one));
    return all;
}

/// The visible widget of a panel of which `words` says that text.
template <class Widget, class Words>
Widget* visibleOne(const QWidget& panel, const std::u16string& text, Words words) {
    for (auto* widget : panel.findChildren<Widget*>())
        if ((widget->*words)() == qtText(text) && widget->isVisibleTo(&panel))
            return widget;
    return nullptr;
}

/// That which a screen reader calls so.
template <class Widget>
Widget* called(const QWidget& panel, const std::u16string& name) {
    return visibleOne<Widget>(panel, name, &QWidget::accessibleName);
}

template <class Widget>
Widget* withText(const QWidget& panel, const std::u16string& text) {
    return visibleOne<Widget>(panel, text, &Widget::text);
}

void expectNumber(const common::NumberField* field, const Control& control) {
    ASSERT_TRUE(field);
    EXPECT_NEAR(field->value(), control.value, 1e-9);
    EXPECT_EQ(field->minimum(), control.number.least);
    EXPECT_EQ(field->maximum(), control.number.most);
    EXPECT_EQ(field->singleStep(), control.number.step);
    EXPECT_EQ(field->suffix(), qtText(common::unitBehind(control.number.unit)));
    EXPECT_EQ(field->isEnabled(), control.isEnabled);
}

void expectSegments(const QWidget* row, const Control& control) {
    ASSERT_TRUE(row);
    const auto buttons = row->findChildren<QAbstractButton*>();
    ASSERT_EQ(static_cast<std::size_t>(buttons.size()), control.options.size());
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const common::Option& option = control.options[static_cast<std::size_t>(i)];
        EXPECT_EQ(buttons[i]->accessibleName(), qtText(option.words));
        EXPECT_EQ(buttons[i]->toolTip(), qtText(option.hint));
        EXPECT_EQ(buttons[i]->isChecked(), static_cast<double>(i) == control.value);
        EXPECT_EQ(buttons[i]->isEnabled(), control.isEnabled);
    }
}

void expectList(const QComboBox* list, const Control& control) {
    ASSERT_TRUE(list);
    ASSERT_EQ(static_cast<std::size_t>(list->count()), control.options.size());
    EXPECT_EQ(list->currentIndex(), static_cast<int>(control.value));
    EXPECT_EQ(list->currentText(), qtText(control.options.at(std::size_t(control.value)).words));
    EXPECT_EQ(list->isEnabled(), control.isEnabled);
}

void expectButton(const QAbstractButton* button, const Control& control) {
    ASSERT_TRUE(button);
    EXPECT_EQ(button->toolTip(), qtText(control.hint));
    EXPECT_EQ(button->isEnabled(), control.isEnabled);
}

/// Each control that is shown is seen, and no other.
void expectShown(const QWidget& panel, const Controls& controls) {
    for (const Control& one : controls) {
        SCOPED_TRACE(told(one));
        if (!one.isShown) {
            EXPECT_FALSE(called<QWidget>(panel, one.name) || withText<QLabel>(panel, one.name));
            continue;
        }
        switch (one.kind) {
        case Kind::Number:
            expectNumber(called<common::NumberField>(panel, one.name), one);
            break;
        case Kind::Segments:
            expectSegments(called<QWidget>(panel, one.name), one);
            break;
        case Kind::List:
            expectList(called<QComboBox>(panel, one.name), one);
            break;
        case Kind::Button:
            expectButton(withText<QAbstractButton>(panel, one.name), one);
            break;
        case Kind::Heading:
        case Kind::Note:
            EXPECT_TRUE(withText<QLabel>(panel, one.name));
        }
    }
}

/// Changes each control of a simulation to both ends, and looks at the panel each time.
template <class Model>
void tryAll(Model& model, const std::function<void(std::function<void()>)>& listen) {
    common::ControlPanel panel([&model] { return controlsOf(model); });
    listen([&panel] { panel.refresh(); });
    expectShown(panel, controlsOf(model));
    const std::size_t count = controlsOf(model).size();
    for (std::size_t i = 0; i < count; ++i) {
        const Control control = controlsOf(model)[i];
        const double last = control.kind == Kind::Number
                                ? control.number.most
                                : static_cast<double>(control.options.size()) - 1;
        for (const double value : {last, control.number.least}) {
            if (control.isEnabled && (control.kind != Kind::Button || value == last))
                control.change(value);
            SCOPED_TRACE(testing::Message() << "after " << told(control));
            ASSERT_EQ(controlsOf(model).size(), count);
            expectShown(panel, controlsOf(model));
        }
    }
}

} // namespace

TEST(Controls, areTold) {
    lens::Bench bench;
    EXPECT_EQ(
        told(controlsOf(bench)),
        Lines({"# Objet", "Distance de l’objet 30 5 150 0,5\u00A0cm: \\text{Distance de l’objet }d",
               "Taille de l’objet 2 0,5 5 0,1\u00A0cm: \\text{Taille de l’objet }h", "# Lentille",
               "Lentille, [convergente], divergente",
               "Distance focale 20 5 50 0,5\u00A0cm: \\text{Distance focale }f\u200A′", "# Écran",
               "Distance de l’écran 40 5 250 0,2\u00A0cm: \\text{Distance de l’écran }",
               "Mettre au point: met l’écran là où l’image est nette",
               "Noter la mesure: quand l’image est nette sur l’écran",
               "Effacer: efface les mesures notées"}));
    bench.setKind(lens::Kind::Diverging);
    EXPECT_TRUE(told(controlsOf(bench))[5].ends_with(": \\text{Distance focale }−f\u200A′"));
    bench.setExercise(shipped(LENS_EXERCISES, "01.E24", lens::parseExercise));
    EXPECT_EQ(told(controlsOf(bench))[4], "Lentille inconnue\u00A0: à vous de la mesurer.");

    reaction::Experiment mixture;
    EXPECT_EQ(
        told(controlsOf(mixture)),
        Lines({"# Réaction",
               "Réaction, [Combustion du méthane], Combustion du propane, Synthèse de l’eau, "
               "Combustion de l’aluminium, Zinc et acide chlorhydrique, Hydroxyde de cuivre",
               "# Quantités initiales",
               "Quantité initiale, méthane 2 0 6 0,1\u00A0mol: \\text{méthane }\\text{CH}_{4}",
               "Quantité initiale, dioxygène 3 0 6 0,1\u00A0mol: \\text{dioxygène }\\text{O}_{2}",
               "Mélange stœchiométrique: change la quantité d’un réactif pour que rien ne reste",
               "La réaction est supposée totale\u00A0: elle s’arrête quand un réactif est "
               "épuisé."}));

    projectile::Experiment launch;
    EXPECT_EQ(
        told(controlsOf(launch)),
        Lines({"# Lancement", "Vitesse initiale 20 0 60 0,5\u00A0m/s: \\text{Vitesse initiale }v_0",
               "Angle de lancement 45 −45 90 1°: \\text{Angle de lancement }α",
               "Hauteur de départ 0 0 100 0,5\u00A0m: \\text{Hauteur de départ }h", "# Astre",
               "Astre, [Terre], Lune, Mars, Jupiter",
               "Pesanteur 9,81 0,5 30 0,1\u00A0m/s²: \\text{Pesanteur }g", "# Projectile",
               "Masse 0,6 0,01 10 0,05\u00A0kg: \\text{Masse }m", "# Frottements de l’air",
               "Frottements de l’air, [aucun], f = k v, f ∝ v²",
               "Seul le poids agit\u00A0: chute libre.",
               "Garder la trajectoire: la laisse dessinée, pour la comparer aux suivantes",
               "Effacer: efface les trajectoires gardées"}));
    const auto instead = [&launch](projectile::Drag drag) {
        launch.setDrag(drag);
        return told(controlsOf(launch)).at(11);
    };
    EXPECT_EQ(instead(projectile::Drag::Linear),
              "Coefficient 0,1 0 0,2 0,005\u00A0kg/s: \\text{Coefficient }k");
    EXPECT_EQ(instead(projectile::Drag::Quadratic),
              "Diamètre 0,24 0,01 0,5 0,01\u00A0m: \\text{Diamètre }d");
}

TEST(Controls, areSeenInTheirPanelWhateverTheState) {
    lens::Bench bench;
    tryAll(bench, [&](const auto& show) {
        bench.onChanged(show);
        bench.onMeasured(show);
    });
    reaction::Experiment mixture;
    tryAll(mixture, [&](const auto& show) { mixture.onChanged(show); });
    projectile::Experiment launch;
    tryAll(launch, [&](const auto& show) {
        launch.onChanged(show);
        launch.onKeptChanged(show);
    });
}
