#include "lens/laws.h"

#include "common/french_number.h"

namespace lens {

namespace {

QString signedNumber(double value, int decimals) {
    const QString number = common::frenchNumber(value, decimals);
    return value > 0 ? u'+' + number : number;
}

/// The same as an operand: "− (−3,33)".
QString bracketed(double value) {
    const QString number = common::frenchNumber(value, 2);
    return value < 0 ? u'(' + number + u')' : number;
}

QString text(const char16_t* utf16) {
    return QString::fromUtf16(utf16);
}

void addImage(std::vector<common::Law>& laws, const Arrangement& arrangement, const Image& image) {
    laws.push_back({QStringLiteral("Relation de conjugaison"), conjugation(arrangement)});
    if (image.isAtInfinity())
        return;
    laws.push_back({QStringLiteral("Place de l’image"),
                    QStringLiteral("%1 = %2").arg(text(kImagePlace), signedLength(image.place()))});
    laws.push_back({QStringLiteral("Grandissement"),
                    QStringLiteral("γ = \\frac{%1}{%2} = %3")
                        .arg(signedLength(image.place()), signedLength(arrangement.object()),
                             signedNumber(image.magnification(), 2))});
    laws.push_back(
        {QStringLiteral("Taille de l’image"),
         QStringLiteral("%1 = γ × %2 = %3")
             .arg(text(kImageHeight), text(kObjectHeight), signedLength(image.height()))});
}

} // namespace

QString signedLength(double centimetres) {
    return signedNumber(centimetres, 1) + QStringLiteral("\\text{\u00A0cm}");
}

QString conjugation(const Arrangement& arrangement) {
    const Image image(arrangement);
    const double object = 100 / arrangement.object();
    return QStringLiteral("1/%1 − 1/%2 = %3 − %4 = %5\\text{\u00A0m}^{−1}")
        .arg(text(kImagePlace), text(kObjectPlace), common::frenchNumber(image.vergence(), 2),
             bracketed(object), common::frenchNumber(image.vergence() - object, 2));
}

std::vector<common::Law> lawsOf(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    std::vector<common::Law> laws = {
        {QStringLiteral("Relations"), {}},
        {QStringLiteral("Vergence"), QStringLiteral("C = \\frac{1}{f\u200A′}")},
        {QStringLiteral("Relation de conjugaison"),
         QStringLiteral("\\frac{1}{%1} − \\frac{1}{%2} = \\frac{1}{f\u200A′}")
             .arg(text(kImagePlace), text(kObjectPlace))},
        {QStringLiteral("Grandissement"),
         QStringLiteral("γ = \\frac{%1}{%2} = \\frac{%3}{%4}")
             .arg(text(kImageHeight), text(kObjectHeight), text(kImagePlace), text(kObjectPlace))},
        {QStringLiteral("Avec vos valeurs"), {}},
        {QStringLiteral("Objet"), QStringLiteral("%1 = %2      %3 = %4")
                                      .arg(text(kObjectPlace), signedLength(arrangement.object()),
                                           text(kObjectHeight), signedLength(arrangement.height))},
    };
    if (!bench.hidesLens())
        laws.push_back(
            {QStringLiteral("Lentille"),
             QStringLiteral("f\u200A′ = %1      C = \\frac{1}{f\u200A′} = %2\\text{\u00A0δ}")
                 .arg(signedLength(arrangement.focal()), signedNumber(arrangement.vergence(), 2))});
    if (!bench.hidesResults())
        addImage(laws, arrangement, bench.image());
    return laws;
}

} // namespace lens
