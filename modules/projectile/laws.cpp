#include "projectile/laws.h"

#include "common/french_number.h"
#include "common/words.h"

#include <cmath>

namespace projectile {

namespace {

using common::filled;

std::u16string number(double value) {
    return common::frenchDigits(value, 3);
}

void addParabola(std::vector<common::Law>& laws, const Flight& flight) {
    const Moment start = flight.start();
    laws.push_back({u"Mouvement", {}});
    laws.push_back({u"Accélération", u"a_x = 0      a_y = −g"});
    laws.push_back({u"Vitesse", u"v_x = v_0 \\cos α      v_y = v_0 \\sin α − g t"});
    laws.push_back({u"Position", u"x = v_0 \\cos α · t      y = h + v_0 \\sin α · t − "
                                 u"\\frac{1}{2} g t^2"});
    laws.push_back({u"Trajectoire", u"y = h + x \\tan α − \\frac{g x^2}{2 v_0^2 \\cos^2 α}"});
    laws.push_back({u"Avec vos valeurs", {}});
    laws.push_back(
        {u"Vitesse initiale", filled(u"v_{0x} = %1\\text{ m/s}      v_{0y} = %2\\text{ m/s}",
                                     {number(start.vx), number(start.vy)})});
    laws.push_back({u"Durée du vol", u"T = \\frac{v_{0y} + \\sqrt{v_{0y}^2 + 2 g h}}{g}"});
    laws.push_back({u"Portée", u"D = v_{0x} T"});
    laws.push_back(
        {u"Point le plus haut", u"y_S = h + \\frac{v_{0y}^2}{2 g}\\text{ (si }v_{0y} > 0)"});
}

void addDrag(std::vector<common::Law>& laws, const Flight& flight) {
    const Launch& launch = flight.launch();
    const bool linear = launch.drag == Drag::Linear;
    laws.push_back({u"Frottement", linear ? u"\\vec{f} = −k \\vec{v}"
                                          : u"\\vec{f} = −\\frac{1}{2} ρ C_x S v \\vec{v}      S = "
                                            u"\\frac{π d^2}{4}"});
    if (!linear)
        laws.push_back({u"Air et forme",
                        filled(u"ρ = %1\\text{ kg/m}^3      C_x = %2\\text{ (sphère)}",
                               {common::frenchDigits(launch.airDensity, 4), number(kSphereDrag)})});
    laws.push_back({u"Vitesse limite",
                    filled(linear ? u"v_l = \\frac{m g}{k} = %1\\text{ m/s}"
                                  : u"v_l = \\sqrt{\\frac{2 m g}{ρ C_x S}} = %1\\text{ m/s}",
                           {number(terminalSpeed(launch))})});
    laws.push_back({u"Calcul", {}});
    laws.push_back({u"Pas à pas", u"\\vec{a} = \\vec{g} + \\frac{\\vec{f}}{m}"});
    laws.push_back({u"Méthode", u"\\text{Runge-Kutta d’ordre 4, à pas variable}"});
}

} // namespace

std::vector<common::Law> lawsOf(const Experiment& experiment) {
    const Flight& flight = experiment.flight();
    const Launch& launch = flight.launch();
    const bool slowed = std::isfinite(terminalSpeed(launch));
    std::vector<common::Law> laws = {
        {u"Forces", {}},
        {u"Deuxième loi de Newton",
         slowed ? u"m \\vec{a} = m \\vec{g} + \\vec{f}"
                : u"m \\vec{a} = m \\vec{g}\\text{   donc   }\\vec{a} = \\vec{g}"},
    };
    if (!slowed && launch.drag != Drag::None)
        laws.push_back(
            {u"Frottement", launch.airDensity > 0
                                ? u"\\vec{f} = \\vec{0}\\text{   (coefficient nul)}"
                                : u"\\vec{f} = \\vec{0}\\text{   (il n’y a pas d’air)}"});
    if (slowed)
        addDrag(laws, flight);
    else
        addParabola(laws, flight);
    laws.push_back({u"Énergies", {}});
    laws.push_back({u"Cinétique, potentielle", u"E_c = \\frac{1}{2} m v^2      E_p = m g y"});
    laws.push_back(
        {u"Mécanique", filled(slowed ? u"E_m = E_c + E_p\\text{   diminue}"
                                     : u"E_m = E_c + E_p = %1\\text{ J}\\text{   se conserve}",
                              {number(flight.energies(flight.start()).mechanical())})});
    return laws;
}

} // namespace projectile
