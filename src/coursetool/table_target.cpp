#include "coursetool/table_target.h"

#include "jet/database_file.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

/// A full disc is no fault of the sources.
void tellAt(const Place& place, const jet::Failure& failure, Report& report) {
    if (failure.kind == jet::Failure::Kind::System)
        report.failure(place, failure.sentence);
    else
        report.fault(place, failure.sentence);
}

} // namespace

DatabaseTarget::DatabaseTarget(std::filesystem::path path, std::string shownAs, Report& report)
    : shownAs_(std::move(shownAs)), report_(report) {
    auto writer = jet::createDatabase(path);
    if (writer)
        writer_ = *std::move(writer);
    else
        tell(writer.error());
}

std::optional<jet::TableWriter> DatabaseTarget::addTable(const TableRule& rule) {
    if (!writer_)
        return std::nullopt;
    auto table = writer_->addTable(text::toUtf16(rule.name), columnsOf(rule));
    if (table)
        return *table;
    tell(table.error());
    return std::nullopt;
}

void DatabaseTarget::finish() {
    if (!writer_)
        return;
    if (const auto done = writer_->finish(); !done)
        tell(done.error());
}

void DatabaseTarget::tell(const jet::Failure& failure) {
    tellAt({shownAs_}, failure, report_);
}

TableTarget::TableTarget(DatabaseTarget& database, const TableRule& rule, Report& report)
    : report_(report), writer_(database.addTable(rule)) {}

void TableTarget::append(std::span<const jet::Value> values, const Place& place) {
    if (!writer_ || report_.hasFaults())
        return;
    if (const auto done = writer_->append(values); !done)
        tellAt(place, done.error(), report_);
}

} // namespace coursetool
