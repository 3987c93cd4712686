#include "lens/laws.h"

#include "common/french_number.h"
#include "common/words.h"

namespace lens {

namespace {

using common::filled;
using common::signedNumber;

/// A number as an operand: "− (−3,33)".
std::u16string bracketed(double value) {
    const std::u16string number = common::frenchNumber(value, 2);
    return value < 0 ? u'(' + number + u')' : number;
}

void addImage(std::vector<common::Law>& laws, const Arrangement& arrangement, const Image& image) {
    laws.push_back({u"Relation de conjugaison", conjugation(arrangement)});
    if (image.isAtInfinity())
        return;
    laws.push_back(
        {u"Place de l’image", filled(u"%1 = %2", {kImagePlace, signedLength(image.place())})});
    laws.push_back(
        {u"Grandissement", filled(u"γ = \\frac{%1}{%2} = %3",
                                  {signedLength(image.place()), signedLength(arrangement.object()),
                                   signedNumber(image.magnification(), 2)})});
    laws.push_back(
        {u"Taille de l’image",
         filled(u"%1 = γ × %2 = %3", {kImageHeight, kObjectHeight, signedLength(image.height())})});
}

} // namespace

std::u16string signedLength(double centimetres) {
    return signedNumber(centimetres, 1) + u"\\text{\u00A0cm}";
}

std::u16string conjugation(const Arrangement& arrangement) {
    const Image image(arrangement);
    const double object = 100 / arrangement.object();
    return filled(u"1/%1 − 1/%2 = %3 − %4 = %5\\text{\u00A0m}^{−1}",
                  {kImagePlace, kObjectPlace, common::frenchNumber(image.vergence(), 2),
                   bracketed(object), common::frenchNumber(image.vergence() - object, 2)});
}

std::vector<common::Law> lawsOf(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    std::vector<common::Law> laws = {
        {u"Relations"},
        {u"Vergence", u"C = \\frac{1}{f\u200A′}"},
        {u"Relation de conjugaison", filled(u"\\frac{1}{%1} − \\frac{1}{%2} = \\frac{1}{f\u200A′}",
                                            {kImagePlace, kObjectPlace})},
        {u"Grandissement", filled(u"γ = \\frac{%1}{%2} = \\frac{%3}{%4}",
                                  {kImageHeight, kObjectHeight, kImagePlace, kObjectPlace})},
        {u"Avec vos valeurs"},
        {u"Objet",
         filled(u"%1 = %2      %3 = %4", {kObjectPlace, signedLength(arrangement.object()),
                                          kObjectHeight, signedLength(arrangement.height)})},
    };
    if (!bench.hidesLens())
        laws.push_back(
            {u"Lentille",
             filled(u"f\u200A′ = %1      C = \\frac{1}{f\u200A′} = %2\\text{\u00A0δ}",
                    {signedLength(arrangement.focal()), signedNumber(arrangement.vergence(), 2)})});
    if (!bench.hidesResults())
        addImage(laws, arrangement, bench.image());
    return laws;
}

} // namespace lens
