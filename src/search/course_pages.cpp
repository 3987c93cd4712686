#include "search/course_pages.h"

#include "jet/database.h"
#include "search/course_pages_state.h"

#include <string>
#include <utility>

namespace search {

namespace {

jet::Failure noColumn(const char* name) {
    return {jet::Failure::Kind::NotFound,
            std::string("la table « cours » n’a pas de colonne « ") + name + " »"};
}

} // namespace

jet::Result<CoursePages> CoursePages::open(const std::filesystem::path& database,
                                           std::size_t /*copyBytes*/) {
    auto opened = jet::Database::open(database);
    if (!opened)
        return opened.error();
    auto table = opened->table(u"cours");
    if (!table)
        return table.error();
    const auto fpc = table->columnIndex(u"fpc");
    const auto moteur = table->columnIndex(u"moteur");
    if (!fpc || !moteur)
        return noColumn(fpc ? "moteur" : "fpc");
    const auto titre = table->columnIndex(u"titre");
    const auto numeropage = table->columnIndex(u"Numeropage");
    return CoursePages(
        std::make_unique<State>(State{*std::move(table), *fpc, *moteur, titre, numeropage}));
}

CoursePages::CoursePages(std::unique_ptr<State> state) : state_(std::move(state)) {}
CoursePages::CoursePages(CoursePages&&) noexcept = default;
CoursePages& CoursePages::operator=(CoursePages&&) noexcept = default;
CoursePages::~CoursePages() = default;

int CoursePages::lastPosition() {
    return static_cast<int>(state_->table.recordCount()) - 1;
}

std::size_t CoursePages::copyBytes() const {
    return 0;
}

} // namespace search
