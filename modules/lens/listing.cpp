#include "lens/listing.h"

#include "common/french_number.h"
#include "common/words.h"
#include "lens/laws.h"

namespace lens {

namespace {

using common::filled;
using common::signedNumber;

std::u16string centimetres(double value) {
    return signedNumber(value, 1) + u"\u00A0cm";
}

std::vector<common::Reading> ofImage(const Bench& bench) {
    const Image image = bench.image();
    const auto shown = [&](double value) {
        return bench.hidesResults() ? u"?" : image.isAtInfinity() ? u"∞" : centimetres(value);
    };
    return {{kImagePlace, shown(image.place()), u"OA prime"},
            {kImageHeight, shown(image.height()), u"A prime B prime"}};
}

/// "γ = −2,00 : réelle, renversée, agrandie", a formula.
std::u16string likeness(const Bench& bench) {
    if (bench.hidesResults())
        return u"\\text{à trouver}";
    const Image image = bench.image();
    const std::u16string words = filled(u"\\text{%1}", {describe(image)});
    return image.isAtInfinity() ? words
                                : filled(u"γ\u00A0=\u00A0%1\\text{\u00A0: }%2",
                                         {signedNumber(image.magnification(), 2), words});
}

std::vector<common::Reading> ofLens(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    const bool hidden = bench.hidesLens();
    return {{u"f\u200A′", hidden ? u"?" : centimetres(arrangement.focal()), u"f prime"},
            {u"C", hidden ? u"?" : signedNumber(arrangement.vergence(), 2) + u"\u00A0δ"}};
}

struct MeasureColumn {
    common::Column head;
    int decimals;
    double (*value)(const Measure&);
};

const MeasureColumn kColumns[] = {
    {{u"OA (cm)", u"\\overline{\\text{OA}}\\text{ (cm)}"},
     1,
     [](const Measure& m) { return m.object; }},
    {{u"OA′ (cm)", u"\\overline{\\text{OA′}}\\text{ (cm)}"},
     1,
     [](const Measure& m) { return m.screen; }},
    {{u"A′B′ (cm)", u"\\overline{\\text{A′B′}}\\text{ (cm)}"},
     2,
     [](const Measure& m) { return m.height; }},
    {{u"γ", u"γ"}, 2, [](const Measure& m) { return m.screen / m.object; }},
    {{u"1/OA (1/m)", u"1/\\overline{\\text{OA}}\\text{ (m}^{−1}\\text{)}"},
     2,
     [](const Measure& m) { return 100 / m.object; }},
    {{u"1/OA′ (1/m)", u"1/\\overline{\\text{OA′}}\\text{ (m}^{−1}\\text{)}"},
     2,
     [](const Measure& m) { return 100 / m.screen; }},
    {{u"écart (1/m)", u"\\text{écart (m}^{−1}\\text{)}"},
     2,
     [](const Measure& m) { return 100 / m.screen - 100 / m.object; }},
};

} // namespace

std::vector<common::ReadingGroup> readingsOf(const Bench& bench) {
    const Arrangement& arrangement = bench.arrangement();
    return {{u"Objet",
             {{kObjectPlace, centimetres(arrangement.object()), u"OA"},
              {kObjectHeight, centimetres(arrangement.height), u"AB"}},
             2},
            {u"Lentille", ofLens(bench), 2},
            {u"Image", ofImage(bench), 2},
            {{}, {{{}, likeness(bench)}}},
            {u"Relation", {{{}, bench.hidesResults() ? u"?" : conjugation(arrangement)}}}};
}

std::u16string imageInWords(const Bench& bench) {
    const Image image = bench.image();
    if (bench.hidesResults())
        return u"image à trouver";
    return image.isAtInfinity() ? describe(image)
                                : filled(u"image à %1, %2, grandissement %3",
                                         {centimetres(image.place()), describe(image),
                                          signedNumber(image.magnification(), 2)});
}

common::Table measuresOf(const Bench& bench) {
    common::Table table;
    for (const MeasureColumn& column : kColumns)
        table.columns.push_back(column.head);
    for (const Measure& measure : bench.measures()) {
        std::vector<std::u16string>& row = table.rows.emplace_back();
        for (const MeasureColumn& column : kColumns)
            row.push_back(common::frenchNumber(column.value(measure), column.decimals));
    }
    return table;
}

} // namespace lens
