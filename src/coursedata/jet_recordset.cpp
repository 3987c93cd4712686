#include "coursedata/jet_recordset.h"

#include "jet/database_file.h"
#include "jet/editor.h"
#include "page/utf16.h"
#include "platform/file_names.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace coursedata {

namespace {

/// Shows a cell as the forms know it.
struct AsField {
    FieldValue operator()(std::monostate) const { return {}; }
    FieldValue operator()(bool yes) const { return yes; }
    FieldValue operator()(std::uint8_t number) const { return static_cast<double>(number); }
    FieldValue operator()(std::int16_t number) const { return static_cast<double>(number); }
    FieldValue operator()(std::int32_t number) const { return static_cast<double>(number); }
    FieldValue operator()(float number) const { return static_cast<double>(number); }
    FieldValue operator()(double number) const { return number; }
    FieldValue operator()(const std::u16string& text) const {
        return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    }
    FieldValue operator()(const jet::Currency& amount) const {
        return jet::Value(amount).number().value_or(0);
    }
    FieldValue operator()(const jet::Decimal& amount) const {
        return jet::Value(amount).number().value_or(0);
    }
    FieldValue operator()(const jet::DateTime&) const { return {}; } // no form binds these
    FieldValue operator()(const jet::Binary&) const { return {}; }
    FieldValue operator()(const jet::Guid&) const { return {}; }
};

FieldValue fieldValue(const jet::Value& value) {
    return std::visit(AsField{}, value.content());
}

/// A number takes the place of the one in the row before without the detour over the variants
/// (`bench/run start`).
void show(const jet::Value& value, FieldValue& field) {
    const auto* const number = value.as<std::int32_t>();
    auto* const shown = std::get_if<double>(&field);
    if (number && shown)
        *shown = *number;
    else
        field = fieldValue(value);
}

/// Where a table is read from, again after each change.
struct TablePlace {
    std::filesystem::path path;
    std::u16string name;

    jet::Result<jet::Table> open() const {
        auto database = jet::openDatabase(path);
        if (!database)
            return database.error();
        return database->table(name);
    }
};

QString sentence(const jet::Failure& failure) {
    return QString::fromStdString(failure.sentence);
}

class JetRecordset : public Recordset {
public:
    JetRecordset(jet::Table table, TablePlace place, Access access)
        : table_(std::move(table)), place_(std::move(place)), access_(access),
          position_(exists(0) ? 0 : -1) {}

    int recordCount() const override {
        static constexpr std::size_t kMost = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(table_.recordCount(), kMost));
    }

    int absolutePosition() const override { return position_; }

    bool setAbsolutePosition(int position) override {
        if (position < 0 || !exists(static_cast<std::size_t>(position)))
            return false;
        position_ = position;
        return true;
    }

    bool hasField(const QString& name) const override {
        return table_.columnIndex(page::utf16(name)).has_value();
    }

    std::optional<FieldValue> field(const QString& name) const override {
        const auto column = table_.columnIndex(page::utf16(name));
        if (!column || position_ < 0)
            return std::nullopt;
        const auto value = table_.value(static_cast<std::size_t>(position_), *column);
        if (!value)
            return std::nullopt;
        return fieldValue(*value);
    }

    std::optional<QString> setField(const QString& name, const QString& text) override {
        if (access_ == Access::ReadOnly)
            return Recordset::setField(name, text);
        if (position_ < 0)
            return QStringLiteral("aucun enregistrement n’est choisi");
        auto editor = jet::DatabaseEditor::open(place_.path);
        if (!editor)
            return sentence(editor.error());
        const auto changed = editor->changeText(place_.name, static_cast<std::size_t>(position_),
                                                page::utf16(name), page::utf16(text));
        if (!changed)
            return sentence(changed.error());
        // Pages read before are old; a record keeps its position when it changes.
        auto reopened = place_.open();
        if (!reopened)
            return sentence(reopened.error());
        table_ = std::move(*reopened);
        return std::nullopt;
    }

    void
    forEach(const QStringList& fields,
            const std::function<void(int, std::span<const FieldValue>)>& visit) const override {
        // Fields that the table lacks stay NULL in every record.
        std::vector<FieldValue> row(static_cast<std::size_t>(fields.size()));
        std::vector<std::size_t> columns;
        std::vector<std::size_t> places;
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (const auto column = table_.columnIndex(page::utf16(fields[i]))) {
                columns.push_back(*column);
                places.push_back(static_cast<std::size_t>(i));
            }
        }
        table_.scan(columns, [&](std::size_t position, std::span<const jet::Value> values) {
            for (std::size_t i = 0; i < values.size(); ++i)
                show(values[i], row[places[i]]);
            visit(static_cast<int>(position), row);
            return position < std::numeric_limits<int>::max();
        });
    }

private:
    /// Finds one record without counting them all, which takes a look at every page.
    bool exists(std::size_t position) const {
        const auto first = table_.value(position, 0);
        return first || first.error().kind != jet::Failure::Kind::NotFound;
    }

    // Reading counts the rows and keeps pages at hand, which is no change to who looks at records.
    mutable jet::Table table_;
    TablePlace place_;
    Access access_;
    int position_;
};

} // namespace

jet::Result<std::unique_ptr<Recordset>> openRecordset(const QString& path, const QString& table,
                                                      Access access) {
    TablePlace place{platform::standardPath(path), table.toStdU16String()};
    auto opened = place.open();
    if (!opened)
        return opened.error();
    if (access == Access::Writable) // better known now than when something was typed
        if (const auto editor = jet::DatabaseEditor::open(place.path); !editor)
            return editor.error();
    return std::unique_ptr<Recordset>(
        std::make_unique<JetRecordset>(std::move(*opened), std::move(place), access));
}

} // namespace coursedata
