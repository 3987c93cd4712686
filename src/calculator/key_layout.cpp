#include "calculator/key_layout.h"

#include "calculator/function_table.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace calculator {

namespace {

constexpr auto kFunction = KeyStyle::Function;
constexpr auto kDigit = KeyStyle::Digit;
constexpr auto kOperator = KeyStyle::Operator;

// clang-format off
constexpr KeyPlace kMemoryKeys[] = {
    {u"Command1", 205, 64, 42, 30, kFunction, 12}, {u"Command2", 251, 64, 42, 30, kFunction, 12},
    {u"Command3", 205, 98, 42, 30, kFunction, 12}, {u"command4", 251, 98, 42, 30, kFunction, 12},
};

constexpr KeyPlace kLowerKeys[] = {
    {u"kilo", 7, 293, 33, 28, kFunction, 11}, {u"mil",    44, 293, 33, 28, kFunction, 11},
    {u"B7",  85, 293, 37, 28, kDigit, 16},    {u"B8",    125, 293, 37, 28, kDigit, 16}, {u"B9",     165, 293, 37, 28, kDigit, 16},
    {u"EFFACE", 211, 293, 39, 28, kOperator, 12}, {u"RAZ", 254, 293, 39, 28, kOperator, 12},
    {u"mega", 7, 325, 33, 28, kFunction, 11}, {u"micro",  44, 325, 33, 28, kFunction, 11},
    {u"B4",  85, 325, 37, 28, kDigit, 16},    {u"B5",    125, 325, 37, 28, kDigit, 16}, {u"B6",     165, 325, 37, 28, kDigit, 16},
    {u"multip", 211, 325, 39, 28, kOperator, 19}, {u"div", 254, 325, 39, 28, kOperator, 19},
    {u"giga", 7, 357, 33, 28, kFunction, 11}, {u"nano",   44, 357, 33, 28, kFunction, 11},
    {u"B1",  85, 357, 37, 28, kDigit, 16},    {u"B2",    125, 357, 37, 28, kDigit, 16}, {u"B3",     165, 357, 37, 28, kDigit, 16},
    {u"plus", 211, 357, 39, 28, kOperator, 19}, {u"moins", 254, 357, 39, 28, kOperator, 19},
    {u"tera", 7, 389, 33, 28, kFunction, 11}, {u"pico",   44, 389, 33, 28, kFunction, 11},
    {u"B0",  85, 389, 37, 28, kDigit, 16},    {u"Bpoint", 125, 389, 37, 28, kDigit, 16}, {u"BtoEXP", 165, 389, 37, 28, kDigit, 12},
    {u"ANS", 211, 389, 39, 28, kOperator, 12}, {u"EXE",   254, 389, 39, 28, KeyStyle::Main, 19},
};

struct BlockKey {
    TextView name;
    int captionPx;
    bool serif = false;
};

/// The keys between the memory and the digits, row by row, but for the last one.
constexpr BlockKey kBlock[] = {
    {u"bsin", 12},    {u"Bcos", 12},      {u"Btan", 12},          {u"Bpo", 13},  {u"bpf", 13},
    {u"invsin", 11},  {u"invcos", 11},    {u"Btoncommande3", 11}, {u"pi", 13},   {u"command5", 12},
    {u"Blog", 12},    {u"Bln", 15, true},       {u"Bexp", 12},          {u"B10x", 13}, {u"racine", 13},
    {u"btcarre", 13}, {u"puissance", 13}, {u"demi", 12},
};
// clang-format on

/// A function that the block does not name takes its next cell, its caption in this size.
constexpr int kCaptionPx = 12;

constexpr std::size_t kColumns = 5;

/// The next cell of the block.
KeyPlace cell(std::size_t index, const BlockKey& key) {
    const int column = static_cast<int>(index % kColumns);
    const int row = static_cast<int>(index / kColumns);
    return {key.name, 7 + column * 58, 140 + row * 34, 54, 30, kFunction, key.captionPx, key.serif};
}

void addBlock(std::vector<KeyPlace>& places) {
    std::size_t used = 0;
    for (const BlockKey& key : kBlock)
        places.push_back(cell(used++, key));
    for (const Function& function : functions())
        if (std::ranges::find(kBlock, function.key.control, &BlockKey::name) == std::end(kBlock))
            places.push_back(cell(used++, {function.key.control, kCaptionPx}));
    // The last one takes what is left of its row.
    KeyPlace recall = cell(used, {u"rappel", kCaptionPx});
    recall.width = cell(used / kColumns * kColumns + kColumns - 1, {}).x + recall.width - recall.x;
    places.push_back(recall);
}

std::vector<KeyPlace> allPlaces() {
    std::vector<KeyPlace> places(std::begin(kMemoryKeys), std::end(kMemoryKeys));
    addBlock(places);
    places.insert(places.end(), std::begin(kLowerKeys), std::end(kLowerKeys));
    return places;
}

} // namespace

std::span<const KeyPlace> keyLayout() {
    static const std::vector<KeyPlace> places = allPlaces();
    return places;
}

} // namespace calculator
