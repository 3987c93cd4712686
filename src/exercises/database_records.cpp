#include "exercises/database_records.h"

#include <utility>

namespace exercises {

namespace {

std::optional<std::u16string> utf16(const std::optional<QString>& text) {
    return text ? std::optional(text->toStdU16String()) : std::nullopt;
}

} // namespace

void DatabaseRecords::read(coursedata::ExerciseTables tables) {
    record_ = coursedata::QuestionRecord(tables.contenu.get());
    tables_ = std::move(tables);
}

TestDescription DatabaseRecords::describe(std::int16_t chapter) const {
    if (!tables_.description)
        return {};
    const auto found = coursedata::describeTest(*tables_.description, chapter);
    return {utf16(found.title), found.count};
}

void DatabaseRecords::moveTo(std::int16_t chapter, std::int16_t question) {
    record_.moveTo(coursedata::questionReference(chapter, question));
}

int DatabaseRecords::type() const {
    return record_.type();
}

std::optional<std::u16string> DatabaseRecords::solution() const {
    return utf16(record_.solution());
}

std::u16string DatabaseRecords::question() const {
    return record_.question().toStdU16String();
}

std::u16string DatabaseRecords::siFaux() const {
    return record_.siFaux().toStdU16String();
}

} // namespace exercises
