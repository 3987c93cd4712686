#include "search/slice_reader.h"

#include "jet/text_sink.h"
#include "text/numeric_reader.h"
#include "text/rounding.h"

#include <string>
#include <utility>

namespace search {

namespace {

/// The first record is never examined, which is meant so.
constexpr std::size_t kFirstExamined = 1;

/// Collects a title.
class TitleSink final : public jet::TextSink {
public:
    explicit TitleSink(std::u16string& out) : out_(out) {}

    void unit(char16_t unit) override { out_ += unit; }
    void ascii(const std::uint8_t* bytes, std::size_t count) override {
        out_.append(bytes, bytes + count);
    }
    void wide(jet::Bytes units) override {
        for (std::size_t at = 0; units.has(at, 2); at += 2)
            out_ += static_cast<char16_t>(units.u16(at));
    }

private:
    std::u16string& out_;
};

bool isSet(const jet::Result<jet::Value>& flag) {
    return flag && flag->number().value_or(0) != 0;
}

/// What a list keeps of the field: a whole number of 32 bits, or 0.
std::int32_t integerField(const jet::Result<jet::Value>& field) {
    if (!field)
        return 0;
    const std::u16string* const shown = field->text();
    return text::toInt32(shown ? text::leadingNumber(*shown) : field->number().value_or(0))
        .value_or(0);
}

jet::Failure noColumn(const char* name) {
    return {jet::Failure::Kind::NotFound,
            std::string("la table « cours » n’a pas de colonne « ") + name + " »"};
}

} // namespace

jet::Result<SliceReader> SliceReader::open(const jet::Database& database) {
    auto table = database.table(u"cours");
    if (!table)
        return table.error();
    const auto fpc = table->columnIndex(u"fpc");
    const auto moteur = table->columnIndex(u"moteur");
    if (!fpc || !moteur)
        return noColumn(fpc ? "moteur" : "fpc");
    const Columns columns{*fpc, *moteur, table->columnIndex(u"titre"),
                          table->columnIndex(u"Numeropage")};
    return SliceReader(*std::move(table), columns);
}

SliceReader::SliceReader(jet::Table table, Columns columns)
    : table_(std::move(table)), columns_(columns) {}

bool SliceReader::read(int first, PageSlice& slice) {
    slice.next = first;
    slice.pages.clear();
    slice.sources.clear();
    slice.sources.reserve(kSliceBytes + kSliceBytes / 8); // the last page goes beyond the end
    slice.titles.clear();
    table_.visit(
        [&](jet::RecordView& record) {
            add(record, slice);
            slice.next = static_cast<int>(record.position() + 1);
            return slice.sources.bytes().size() < kSliceBytes && slice.next < first + kSliceRecords;
        },
        static_cast<std::size_t>(first));
    return slice.next > first;
}

jet::Problems SliceReader::problems() const {
    jet::Problems all = table_.problems();
    all.add(unreadable_);
    return all;
}

/// False when the record has no source to search.
bool SliceReader::addSource(jet::RecordView& record, FoldedText& sources) {
    const auto present = record.readText(columns_.fpc, sources);
    if (present && *present) {
        sources.endText();
        return true;
    }
    if (!present)
        unreadable_.add(present.error().sentence);
    sources.dropPieces();
    return false;
}

void SliceReader::add(jet::RecordView& record, PageSlice& slice) {
    if (record.position() < kFirstExamined || !isSet(record.value(columns_.moteur)) ||
        !addSource(record, slice.sources))
        return;
    TitleSink title(slice.titles);
    if (columns_.titre) // one that cannot be read is empty
        [[maybe_unused]]
        const auto present = record.readText(*columns_.titre, title);
    const std::int32_t number =
        columns_.numeropage ? integerField(record.value(*columns_.numeropage)) : 0;
    slice.pages.push_back({static_cast<int>(record.position()), number, slice.titles.size()});
}

} // namespace search
