#include "jet/table_reader.h"

#include "jet/apart.h"
#include "jet/cell_decoder.h"
#include "jet/names.h"
#include "text/utf8.h"

#include <utility>

namespace jet {

namespace {

bool isText(ColumnType type) {
    return type == ColumnType::Text || type == ColumnType::Memo;
}

bool isLong(ColumnType type) {
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

/// Into a Value that held a number like it in the row before, as nearly always, without the detour
/// over the variant (`bench/run start`).
template <class Number>
void put(Number number, Value& into) {
    if (Number* const held = into.as<Number>())
        *held = number;
    else
        into = number;
}

} // namespace

/// The record a visit has come to.
class TableReader::View final : public RecordView {
public:
    explicit View(TableReader& reader) : reader_(reader) {}
    void moveTo(const LiveRow& live) { live_ = &live; }

    std::size_t position() const override { return live_->position; }

    bool isNull(std::size_t column) override { return reader_.isNull(live_->row, column); }

    Result<Value> value(std::size_t column) override {
        Value value;
        if (const auto read = reader_.readCell(*live_, column, value); !read)
            return read.error();
        return value;
    }

    Result<void> read(std::size_t column, Value& into) override {
        return reader_.readCell(*live_, column, into);
    }

    Result<bool> readText(std::size_t column, TextSink& out) override {
        return reader_.decodeCellText(*live_, column, out);
    }

private:
    TableReader& reader_;
    const LiveRow* live_ = nullptr;
};

Result<std::unique_ptr<TableReader>> TableReader::open(std::shared_ptr<PageSource> source,
                                                       std::uint32_t page, std::u16string name) {
    auto definition = readTableDefinition(*source, page);
    if (!definition)
        return Failure{definition.error().kind,
                       "table « " + text::toUtf8(name) + " » : " + definition.error().sentence};
    return std::unique_ptr<TableReader>(
        new TableReader(std::move(source), std::move(*definition), std::move(name)));
}

TableReader::TableReader(std::shared_ptr<PageSource> source, TableDefinition definition,
                         std::u16string name)
    : source_(std::move(source)), definition_(std::move(definition)), name_(std::move(name)),
      rows_(*source_, definition_, label()), longValues_(*source_) {}

std::string TableReader::label() const {
    return "table « " + text::toUtf8(name_) + " »";
}

std::optional<std::size_t> TableReader::columnIndex(std::u16string_view name) const {
    for (std::size_t i = 0; i < columns().size(); ++i)
        if (sameName(columns()[i].name, name))
            return i;
    return std::nullopt;
}

Result<Value> TableReader::value(std::size_t position, std::size_t column) {
    if (column >= columns().size())
        return noSuch(position, column);
    longValues_.startPass();
    longValues_.startRecord();
    Value value;
    Result<void> read;
    const bool found = rows_.at(position, [&](const LiveRow& live) {
        read = readCell(live, column, value);
        return true;
    });
    if (!found)
        return noSuch(position, column);
    if (!read)
        return read.error();
    return value;
}

Result<std::vector<Value>> TableReader::record(std::size_t position) {
    std::vector<Value> values(columns().size());
    longValues_.startPass();
    longValues_.startRecord();
    Result<void> read;
    const bool found = rows_.at(position, [&](const LiveRow& live) {
        for (std::size_t i = 0; i < values.size() && read; ++i)
            read = readCell(live, i, values[i]);
        return true;
    });
    if (!found)
        return noSuch(position, 0);
    if (!read)
        return read.error();
    return values;
}

Problems TableReader::scan(std::span<const std::size_t> columns,
                           const Table::ScanCallback& callback) {
    longValues_.startPass();
    Problems cellProblems;
    std::vector<Value> cells(columns.size());
    rows_.forEach([&](const LiveRow& live) {
        longValues_.startRecord();
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (const auto read = readCell(live, columns[i], cells[i]); !read) {
                cells[i] = Value();
                cellProblems.add(read.error().sentence);
            }
        }
        return callback(live.position, cells);
    });
    Problems all = problems();
    all.add(cellProblems);
    return all;
}

Problems TableReader::visit(const Table::VisitCallback& callback, std::size_t first) {
    // Taken up again, a visit goes on with what it may still read: a damaged file gives no more
    // for being visited in pieces.
    if (first == 0 || first != visitEnd_)
        longValues_.startPass();
    View view(*this);
    rows_.forEach(
        [&](const LiveRow& live) {
            longValues_.startRecord();
            view.moveTo(live);
            visitEnd_ = live.position + 1;
            return callback(view);
        },
        first);
    return problems();
}

TextForm TableReader::textForm(std::size_t column) const {
    if (!source_->format().wideText)
        return TextForm::Windows1252;
    return definition_.places[column].fixed ? TextForm::Utf16 : TextForm::Compressible;
}

bool TableReader::isNull(const Row& row, std::size_t column) const {
    return column >= columns().size() || (columns()[column].type != ColumnType::Boolean &&
                                          !row.isSet(definition_.places[column].number));
}

/// A sound value of the type that nearly all numbers of a course have.
std::optional<std::int32_t> TableReader::longNumber(const Row& row, std::size_t column) const {
    const ColumnPlace& place = definition_.places[column];
    if (columns()[column].type != ColumnType::Long || !place.fixed ||
        place.size != sizeof(std::int32_t))
        return std::nullopt;
    const auto bytes = row.fixedValue(place.fixedOffset, sizeof(std::int32_t));
    if (!bytes)
        return std::nullopt;
    return static_cast<std::int32_t>(bytes->u32(0));
}

/// The bytes of a value of fixed length that is neither text nor a long value, when they are sound.
std::optional<Bytes> TableReader::plainBytes(const Row& row, std::size_t column) const {
    const ColumnPlace& place = definition_.places[column];
    const ColumnType type = columns()[column].type;
    if (!place.fixed || isText(type) || isLong(type))
        return std::nullopt;
    const auto bytes = row.fixedValue(place.fixedOffset, place.size);
    return bytes && bytes->size() >= fixedSizeOf(type) ? bytes : std::nullopt;
}

/// The bytes of a cell that is not NULL, brought together if it is a long value.
Result<LongValues::Value> TableReader::cellBytes(const Row& row, std::size_t column) {
    const ColumnPlace& place = definition_.places[column];
    const auto bytes = place.fixed ? row.fixedValue(place.fixedOffset, place.size)
                                   : row.variableValue(place.variableIndex);
    if (!bytes)
        return Failure{Failure::Kind::Damaged, "valeur dont les bornes sortent de la ligne"};
    const ColumnType type = columns()[column].type;
    if (!isLong(type) && bytes->size() < fixedSizeOf(type))
        return Failure{Failure::Kind::Damaged, "valeur plus courte que son type"};
    Result<LongValues::Value> stored =
        isLong(type) ? longValues_.fetch(*bytes) : LongValues::Value{{}, *bytes};
    if (stored)
        stored->bytes = apart(stored->bytes, stored->page.block);
    return stored;
}

Result<void> TableReader::readCell(const LiveRow& live, std::size_t column, Value& into) {
    if (isNull(live.row, column)) {
        into = Value();
        return {};
    }
    const Column& declared = columns()[column];
    if (declared.type == ColumnType::Boolean) {
        put(live.row.isSet(definition_.places[column].number), into);
        return {};
    }
    if (const auto number = longNumber(live.row, column)) {
        put(*number, into);
        return {};
    }
    // Numbers and the like, which stand in the row itself: nothing to bring together.
    if (const auto plain = plainBytes(live.row, column)) {
        into = decodeCell(*plain, declared);
        return {};
    }
    const auto stored = cellBytes(live.row, column);
    if (!stored)
        return cellFailure(live, column, stored.error());
    if (!isText(declared.type)) {
        into = decodeCell(stored->bytes, declared);
        return {};
    }
    auto* text = into.as<std::u16string>();
    if (!text)
        text = &into.content().emplace<std::u16string>();
    text->clear();
    decodeText(stored->bytes, textForm(column), *text);
    return {};
}

Result<bool> TableReader::decodeCellText(const LiveRow& live, std::size_t column, TextSink& out) {
    if (isNull(live.row, column) || !isText(columns()[column].type))
        return false;
    const auto stored = cellBytes(live.row, column);
    if (!stored)
        return cellFailure(live, column, stored.error());
    decodeText(stored->bytes, textForm(column), out);
    return true;
}

Failure TableReader::cellFailure(const LiveRow& live, std::size_t column,
                                 const Failure& failure) const {
    return {failure.kind, label() + ", colonne « " + text::toUtf8(columns()[column].name) +
                              " », page " + std::to_string(live.place.page) + ", ligne " +
                              std::to_string(live.place.row) + " : " + failure.sentence};
}

Failure TableReader::noSuch(std::size_t position, std::size_t column) const {
    return {Failure::Kind::NotFound, label() + " : pas d’enregistrement " +
                                         std::to_string(position) + ", colonne " +
                                         std::to_string(column)};
}

} // namespace jet
