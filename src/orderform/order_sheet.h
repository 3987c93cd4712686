#pragma once

#include "orderform/order.h"
#include "page/sheet.h"
#include "page/text_metrics.h"
#include "platform/printer.h"

namespace orderform {

/// What the product is called on the form and on paper.
inline const QString kArticle =
    QStringLiteral("Orvalente, physique et chimie, collège et lycée (cédérom)");

/// The mail-order form of a tidied order without faults: where it goes to, who orders, the articles
/// and the total, how to pay, room for date and signature. It stands on one sheet, in smaller
/// letters where the paper has less room than A4 upright.
page::Sheet orderSheet(const Order& order, const platform::Paper& paper,
                       const page::TextMetrics& metrics);

} // namespace orderform
