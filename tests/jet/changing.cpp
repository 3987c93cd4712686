#include "jet/changing.h"

#include "jet/csv_dump.h"
#include "jet/data_page.h"
#include "jet/database_file.h"
#include "jet/record_follower.h"
#include "jet/table_rows.h"
#include "jet/table_tail.h"
#include "jet/usage_map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

const jet::Failure kCut{jet::Failure::Kind::System, "coupé"};

} // namespace

CutSink::CutSink(const std::filesystem::path& path, std::size_t allowed, std::size_t& done,
                 Then then)
    : file_(std::move(*jet::PageFile::open(path))), allowed_(allowed), done_(&done), then_(then) {}

jet::Result<void> CutSink::write(std::uint32_t number, jet::Bytes page) {
    if (*done_ == allowed_ && !(cut_ && then_ == Then::Works)) {
        cut_ = true;
        return kCut;
    }
    *done_ += cut_ ? 0 : 1;
    return file_->write(number, page);
}

jet::Result<void> CutSink::sync() {
    return cut_ && then_ == Then::Dead ? kCut : jet::Result<void>();
}

void CutSink::cutBack() {
    EXPECT_FALSE(cut_ && then_ == Then::Dead)
        << "pages are cut off though those that name them could not be put back";
    file_->cutBack();
}

Snapshot snapshot(const std::filesystem::path& path) {
    Snapshot all;
    const auto database = jet::openDatabase(path);
    if (!database)
        return all;
    for (const jet::TableInfo& info : database->tables()) {
        auto table = database->table(info.name);
        if (!table)
            continue;
        const std::size_t columns = table->columns().size();
        table->visit([&](jet::RecordView& record) {
            std::vector<std::string>& cells = all[{info.name, record.position()}];
            for (std::size_t i = 0; i < columns; ++i) {
                const auto value = record.value(i);
                cells.push_back(value ? dumpCell(*value).value_or("NULL") : "damaged");
            }
            return true;
        });
    }
    return all;
}

namespace {

class MapCheck {
public:
    explicit MapCheck(const std::filesystem::path& path)
        : source_(*jet::openPages(path)), free_(pages(jet::kGlobalMap, jet::kGlobalMapOwner)) {}

    void table(const jet::TableInfo& info) {
        const auto definition = *jet::readTableDefinition(*source_, info.definitionPage);
        const auto tail = *jet::readTableTail(definition);
        const std::set<std::uint32_t> owned = take(definition.ownedPages);
        expectWithin(pages(definition.pagesWithRoom), owned);
        std::map<std::size_t, std::set<std::uint32_t>> ofColumn;
        for (const auto& [column, maps] : tail.longColumns) {
            ofColumn[column] = take(maps.owned);
            expectWithin(pages(maps.withRoom), ofColumn[column]);
        }
        jet::TableRows rows(*source_, definition, "t");
        jet::RecordFollower follower(*source_);
        rows.forEach([&](const jet::LiveRow& live) {
            EXPECT_TRUE(owned.contains(live.body.page));
            for (const jet::ColumnPlace& place : definition.places)
                if (ofColumn.contains(place.number) && live.row.isSet(place.number))
                    follower.follow(*live.row.variableValue(place.variableIndex),
                                    [&](jet::RowPointer record) {
                                        EXPECT_TRUE(ofColumn[place.number].contains(record.page));
                                    });
            return true;
        });
        EXPECT_EQ(rows.count(), definition.rowCount);
    }

private:
    std::set<std::uint32_t> pages(jet::RowPointer map, std::uint32_t owner = jet::kMapOwner) {
        const auto list = jet::pagesInMap(*source_, map, owner);
        EXPECT_TRUE(list);
        return list ? std::set(list->begin(), list->end()) : std::set<std::uint32_t>();
    }

    /// Pages of an owner, which no other may have.
    std::set<std::uint32_t> take(jet::RowPointer map) {
        const std::set<std::uint32_t> owned = pages(map);
        for (const std::uint32_t number : owned) {
            EXPECT_FALSE(free_.contains(number)) << "page " << number << " is owned and free";
            EXPECT_TRUE(taken_.insert(number).second) << "page " << number << " has two owners";
            expectFreeBytes(number);
        }
        return owned;
    }

    static void expectWithin(const std::set<std::uint32_t>& part,
                             const std::set<std::uint32_t>& whole) {
        EXPECT_TRUE(std::includes(whole.begin(), whole.end(), part.begin(), part.end()));
    }

    void expectFreeBytes(std::uint32_t number) {
        const jet::Format& format = source_->format();
        const auto page = source_->page(number);
        const std::size_t slots = page->bytes.u16(format.slotCountAt);
        const std::size_t end = format.slotsAt + 2 * slots;
        const std::size_t lowest =
            slots == 0 ? format.pageSize
                       : std::size_t{page->bytes.u16(end - 2)} & jet::kSlotOffsetMask;
        EXPECT_EQ(page->bytes.u16(jet::kFreeBytesAt), lowest - end) << "page " << number;
    }

    std::shared_ptr<jet::PageSource> source_;
    std::set<std::uint32_t> free_;
    std::set<std::uint32_t> taken_;
};

} // namespace

void expectSoundMaps(const std::filesystem::path& path) {
    const auto database = jet::openDatabase(path);
    ASSERT_TRUE(database);
    MapCheck check(path);
    for (const jet::TableInfo& info : database->tables())
        check.table(info);
}
