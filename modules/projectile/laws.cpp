#include "projectile/laws.h"

#include "common/french_number.h"

#include <cmath>

namespace projectile {

namespace {

QString number(double value) {
    return common::frenchDigits(value, 3);
}

void addParabola(std::vector<common::Law>& laws, const Flight& flight) {
    const Moment start = flight.start();
    laws.push_back({QStringLiteral("Mouvement"), {}});
    laws.push_back({QStringLiteral("Accélération"), QStringLiteral("a_x = 0      a_y = −g")});
    laws.push_back({QStringLiteral("Vitesse"),
                    QStringLiteral("v_x = v_0 \\cos α      v_y = v_0 \\sin α − g t")});
    laws.push_back({QStringLiteral("Position"),
                    QStringLiteral("x = v_0 \\cos α · t      y = h + v_0 \\sin α · t − "
                                   "\\frac{1}{2} g t^2")});
    laws.push_back({QStringLiteral("Trajectoire"),
                    QStringLiteral("y = h + x \\tan α − \\frac{g x^2}{2 v_0^2 \\cos^2 α}")});
    laws.push_back({QStringLiteral("Avec vos valeurs"), {}});
    laws.push_back({QStringLiteral("Vitesse initiale"),
                    QStringLiteral("v_{0x} = %1\\text{ m/s}      v_{0y} = %2\\text{ m/s}")
                        .arg(number(start.vx), number(start.vy))});
    laws.push_back({QStringLiteral("Durée du vol"),
                    QStringLiteral("T = \\frac{v_{0y} + \\sqrt{v_{0y}^2 + 2 g h}}{g}")});
    laws.push_back({QStringLiteral("Portée"), QStringLiteral("D = v_{0x} T")});
    laws.push_back({QStringLiteral("Point le plus haut"),
                    QStringLiteral("y_S = h + \\frac{v_{0y}^2}{2 g}\\text{ (si }v_{0y} > 0)")});
}

void addDrag(std::vector<common::Law>& laws, const Flight& flight) {
    const Launch& launch = flight.launch();
    const bool linear = launch.drag == Drag::Linear;
    laws.push_back({QStringLiteral("Frottement"),
                    linear ? QStringLiteral("\\vec{f} = −k \\vec{v}")
                           : QStringLiteral("\\vec{f} = −\\frac{1}{2} ρ C_x S v \\vec{v}      S = "
                                            "\\frac{π d^2}{4}")});
    if (!linear)
        laws.push_back({QStringLiteral("Air et forme"),
                        QStringLiteral("ρ = %1\\text{ kg/m}^3      C_x = %2\\text{ (sphère)}")
                            .arg(common::frenchDigits(launch.airDensity, 4), number(kSphereDrag))});
    laws.push_back({QStringLiteral("Vitesse limite"),
                    (linear ? QStringLiteral("v_l = \\frac{m g}{k}")
                            : QStringLiteral("v_l = \\sqrt{\\frac{2 m g}{ρ C_x S}}")) +
                        QStringLiteral(" = %1\\text{ m/s}").arg(number(terminalSpeed(launch)))});
    laws.push_back({QStringLiteral("Calcul"), {}});
    laws.push_back(
        {QStringLiteral("Pas à pas"), QStringLiteral("\\vec{a} = \\vec{g} + \\frac{\\vec{f}}{m}")});
    laws.push_back({QStringLiteral("Méthode"),
                    QStringLiteral("\\text{Runge-Kutta d’ordre 4, à pas variable}")});
}

} // namespace

std::vector<common::Law> lawsOf(const Flight& flight) {
    const Launch& launch = flight.launch();
    const bool slowed = std::isfinite(terminalSpeed(launch));
    std::vector<common::Law> laws = {
        {QStringLiteral("Forces"), {}},
        {QStringLiteral("Deuxième loi de Newton"),
         slowed ? QStringLiteral("m \\vec{a} = m \\vec{g} + \\vec{f}")
                : QStringLiteral("m \\vec{a} = m \\vec{g}\\text{   donc   }\\vec{a} = \\vec{g}")},
    };
    if (!slowed && launch.drag != Drag::None)
        laws.push_back(
            {QStringLiteral("Frottement"),
             launch.airDensity > 0
                 ? QStringLiteral("\\vec{f} = \\vec{0}\\text{   (coefficient nul)}")
                 : QStringLiteral("\\vec{f} = \\vec{0}\\text{   (il n’y a pas d’air)}")});
    if (slowed)
        addDrag(laws, flight);
    else
        addParabola(laws, flight);
    laws.push_back({QStringLiteral("Énergies"), {}});
    laws.push_back({QStringLiteral("Cinétique, potentielle"),
                    QStringLiteral("E_c = \\frac{1}{2} m v^2      E_p = m g y")});
    laws.push_back({QStringLiteral("Mécanique"),
                    slowed ? QStringLiteral("E_m = E_c + E_p\\text{   diminue}")
                           : QStringLiteral("E_m = E_c + E_p = %1\\text{ J}\\text{   se conserve}")
                                 .arg(number(flight.energies(flight.start()).mechanical()))});
    return laws;
}

} // namespace projectile
