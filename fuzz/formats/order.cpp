// What somebody types into the order form: a field a line.

#include "orderform/order.h"

#include "drawings.h"
#include "formats/all.h"
#include "orderform/order_sheet.h"
#include "orderform/price.h"

#include <QStringList>

namespace fuzz {

namespace {

void readOne(Input input) {
    const QStringList lines =
        QString::fromUtf8(textOf(input).data(), static_cast<qsizetype>(input.size())).split(u'\n');
    orderform::Order order;
    for (std::size_t i = 0; i < orderform::kFieldCount; ++i)
        order.texts[i] = lines.value(static_cast<qsizetype>(i));
    const orderform::Order tidy = orderform::tidied(order);
    require(orderform::tidied(tidy).texts == tidy.texts, "what is tidied stays as it is");
    const auto faulty = orderform::faultyFields(tidy);
    for (const orderform::Field field : faulty)
        require(!orderform::faultOf(tidy, field).isEmpty(), "a fault has words");
    if (!faulty.empty())
        return;
    const auto copies = orderform::copies(tidy);
    require(copies && *copies >= orderform::kFewestCopies && *copies <= orderform::kMostCopies,
            "an order without faults is for some copies");
    for (const QString& text : tidy.texts)
        require(text.size() <= orderform::kLongestText, "a text fits its line");
    const page::Sheet sheet = orderform::orderSheet(tidy, platform::kPlainPaper, fonts());
    require(!output::svgDocument(sheet, fonts(), {}).isEmpty(), "an order can be printed");
}

} // namespace

const Format kOrder{
    "order",
    readOne,
    {{"fuzz/corpus/order", ""}},
    {"\n",        " ",        "  ", "75001",        "75 001",           "0",        "1",
     "99",        "100",      "-1", "1e1",          "FRANCE",           "Belgique", "é",
     "e\xCC\x81", "\xC2\xA0", "\t", "\xE2\x80\xAE", "\xF0\x9D\x91\x8E", "٣",        "\xEF\xBB\xBF"},
    2000,
};

} // namespace fuzz
