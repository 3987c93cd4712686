#include "jet/system_tables.h"

#include "jet/cipher.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <utility>

namespace jet {

namespace {

/// When the engine made the database that the header below was taken from, as an OLE date. The
/// password mask and the names of owners depend on it in a way that is not known, so all three go
/// together; it also serves as the date of every object, which makes databases of the same content
/// the same file.
constexpr double kHeaderStamp = std::bit_cast<double>(0x40E4AB3E3BD3853EULL);
constexpr double kObjectDate = std::bit_cast<double>(0x40E4AB3E3BD3FB4EULL);

// Users and groups, under the mask of that stamp.
const std::vector<std::uint8_t> kEngine{0x65, 0x89};
const std::vector<std::uint8_t> kAdmin{0x64, 0x8B};
const std::vector<std::uint8_t> kUsers{0x65, 0x8B};
const std::vector<std::uint8_t> kCreator{0x65, 0x8E};

constexpr std::int32_t kRoot = 0x0F000000;
constexpr std::int32_t kTables = 0x0F000001;
constexpr std::int32_t kDatabases = 0x0F000002;
constexpr std::int32_t kRelationships = 0x0F000003;
constexpr std::int32_t kDatabaseObject = 0x10000000;
constexpr std::int16_t kTableType = 1;
constexpr std::int16_t kDatabaseType = 2;
constexpr std::int16_t kContainerType = 3;
constexpr auto kSystemObject = static_cast<std::int32_t>(0x80000000);
constexpr std::int32_t kNewTableRights = 0xFFEFF;

constexpr std::uint8_t kSystemColumn = 0x10;
constexpr std::uint8_t kObfuscated = 0x20;
constexpr int kSystemBinaryLength = 510;

Column column(const char16_t* name, ColumnType type) {
    Column column{.name = name, .type = type, .compressible = false};
    if (type == ColumnType::Text)
        column.length = 255;
    if (type == ColumnType::Binary)
        column.length = kSystemBinaryLength;
    return column;
}

using Type = ColumnType;

/// Columns are in the order of their numbers.
TablePlan systemTable(const char16_t* name, std::uint32_t page, std::vector<Column> columns) {
    TablePlan plan;
    plan.name = name;
    plan.system = true;
    plan.definitionPages = {page};
    plan.columns = std::move(columns);
    const std::vector<ColumnPlace> places = placesFor(plan.columns);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const std::u16string& columnName = plan.columns[i].name;
        const bool obfuscated = columnName == u"Owner" || columnName == u"SID";
        const int flags = kSystemColumn | kColumnUpdatable | (places[i].fixed ? kColumnFixed : 0) |
                          (obfuscated ? kObfuscated : 0);
        plan.columnFlags.push_back(static_cast<std::uint8_t>(flags));
    }
    return plan;
}

RealIndex realIndex(std::vector<std::uint16_t> columns, std::uint32_t root, std::uint8_t flags) {
    RealIndex index;
    index.columns = std::move(columns);
    index.root = root;
    index.flags = flags;
    return index;
}

} // namespace

TablePlan objectsTable() {
    TablePlan plan = systemTable(
        u"MSysObjects", 2,
        {column(u"Id", Type::Long), column(u"ParentId", Type::Long), column(u"Name", Type::Text),
         column(u"Type", Type::Integer), column(u"DateCreate", Type::DateTime),
         column(u"DateUpdate", Type::DateTime), column(u"Owner", Type::Binary),
         column(u"Flags", Type::Long), column(u"Database", Type::Memo),
         column(u"Connect", Type::Memo), column(u"ForeignName", Type::Text),
         column(u"RmtInfoShort", Type::Binary), column(u"RmtInfoLong", Type::Ole),
         column(u"Lv", Type::Ole), column(u"LvProp", Type::Ole), column(u"LvModule", Type::Ole),
         column(u"LvExtra", Type::Ole)});
    plan.realIndexes = {realIndex({1, 2}, 7, 0x81), realIndex({0}, 8, 0x81)};
    plan.logicalIndexes = {{u"Id", 1, true}, {u"ParentIdName", 0, false}};
    plan.firstDataPage = 14;
    return plan;
}

TablePlan rightsTable() {
    TablePlan plan =
        systemTable(u"MSysACEs", 3,
                    {column(u"ObjectId", Type::Long), column(u"SID", Type::Binary),
                     column(u"ACM", Type::Long), column(u"FInheritable", Type::Boolean)});
    plan.realIndexes = {realIndex({0}, 9, 0x88)};
    plan.logicalIndexes = {{u"ObjectId", 0, false}};
    plan.firstDataPage = 15;
    return plan;
}

TablePlan queriesTable() {
    TablePlan plan = systemTable(u"MSysQueries", 4,
                                 {column(u"ObjectId", Type::Long), column(u"Attribute", Type::Byte),
                                  column(u"Order", Type::Binary), column(u"Name1", Type::Text),
                                  column(u"Name2", Type::Text), column(u"Expression", Type::Memo),
                                  column(u"Flag", Type::Integer), column(u"LvExtra", Type::Long)});
    plan.realIndexes = {realIndex({0, 1, 2}, 10, 0x81)};
    plan.logicalIndexes = {{u"ObjectIdAttribute", 0, true}};
    return plan;
}

TablePlan relationshipsTable() {
    TablePlan plan = systemTable(
        u"MSysRelationships", 5,
        {column(u"szRelationship", Type::Text), column(u"grbit", Type::Long),
         column(u"ccolumn", Type::Long), column(u"icolumn", Type::Long),
         column(u"szObject", Type::Text), column(u"szColumn", Type::Text),
         column(u"szReferencedObject", Type::Text), column(u"szReferencedColumn", Type::Text)});
    plan.realIndexes = {realIndex({0}, 11, 0x82), realIndex({4}, 12, 0x82),
                        realIndex({6}, 13, 0x82)};
    plan.logicalIndexes = {
        {u"szObject", 1, false}, {u"szReferencedObject", 2, false}, {u"szRelationship", 0, false}};
    return plan;
}

std::vector<CatalogObject> engineObjects() {
    return {{kTables, kRoot, u"Tables", kContainerType, kEngine, kSystemObject},
            {kDatabases, kRoot, u"Databases", kContainerType, kEngine, kSystemObject},
            {kRelationships, kRoot, u"Relationships", kContainerType, kEngine, kSystemObject},
            {kDatabaseObject, kDatabases, u"MSysDb", kDatabaseType, kAdmin, kSystemObject},
            {2, kTables, u"MSysObjects", kTableType, kEngine, kSystemObject},
            {3, kTables, u"MSysACEs", kTableType, kEngine, kSystemObject},
            {4, kTables, u"MSysQueries", kTableType, kEngine, kSystemObject},
            {5, kTables, u"MSysRelationships", kTableType, kEngine, kSystemObject}};
}

std::vector<ObjectRight> engineRights() {
    return {{2, kAdmin, 0x60000, false},
            {3, kAdmin, 0x60000, false},
            {4, kAdmin, 0x60000, false},
            {5, kAdmin, 0xE0000, false},
            {kTables, kCreator, 0xF00FE, true},
            {kTables, kAdmin, 0x60001, false},
            {kRelationships, kCreator, 0xF00FE, true},
            {kRelationships, kAdmin, 0x60001, false},
            {kDatabases, kAdmin, 0x60000, false},
            {kDatabaseObject, kAdmin, 0x6000E, false},
            {kDatabaseObject, kUsers, 0xE, false},
            {4, kUsers, 0x14, false},
            {5, kUsers, 0x14, false},
            {2, kUsers, 0x14, false},
            {kTables, kUsers, 0xFFEFF, true},
            {kRelationships, kUsers, 0xFFFFF, true}};
}

CatalogObject userTableObject(std::uint32_t definitionPage, std::u16string name) {
    return {
        static_cast<std::int32_t>(definitionPage), kTables, std::move(name), kTableType, kAdmin, 0};
}

std::vector<ObjectRight> userTableRights(std::uint32_t definitionPage) {
    const auto object = static_cast<std::int32_t>(definitionPage);
    return {{object, kAdmin, kNewTableRights, false}, {object, kUsers, kNewTableRights, false}};
}

std::vector<Value> rowOf(const CatalogObject& object) {
    std::vector<Value> row{object.id,    object.parent,         object.name,
                           object.type,  DateTime{kObjectDate}, DateTime{kObjectDate},
                           object.owner, object.flags};
    row.resize(objectsTable().columns.size());
    return row;
}

std::vector<Value> rowOf(const ObjectRight& right) {
    return {right.object, right.user, right.rights, right.inheritable};
}

PageImage headerPage() {
    constexpr std::string_view kEngineName = "Standard Jet DB";
    constexpr std::size_t kMaskAt = 0x18, kMaskBytes = 128;
    constexpr std::size_t kPasswordAt = 0x42, kPasswordWords = 10;
    constexpr std::size_t kUsersAt = 0xE00;
    PageImage page(kJet4.pageSize);
    page[1] = 1;
    std::copy(kEngineName.begin(), kEngineName.end(), page.begin() + 4);
    put32(page, 0x14, 1); // version: Jet 4
    put32(page, 0x18, RowPointer(kGlobalMapPage, 0).stored());
    put32(page, 0x1C, RowPointer(kGlobalMapPage, 1).stored());
    for (std::uint32_t i = 0; i < 4; ++i)
        put32(page, 0x20 + 4 * i, kCatalogPage + i);
    put16(page, 0x3C, 1252);
    // No password: the days of the stamp, with which a password would be mixed.
    for (std::size_t i = 0; i < kPasswordWords; ++i)
        put32(page, kPasswordAt + 4 * i, static_cast<std::uint32_t>(kHeaderStamp));
    put32(page, 0x6A, 0x261C);
    put16(page, 0x6E, 0x0409); // General sort order
    putNumber(page, 0x72, std::bit_cast<std::uint64_t>(kHeaderStamp), 8);
    applyRc4(kHeaderMaskKey, std::span(page).subspan(kMaskAt, kMaskBytes));
    put32(page, 0x98, 0x654);
    putBytes(page, 0x9C, std::vector<std::uint8_t>{'4', '.', '0'});
    page[kUsersAt] = 1;
    for (std::size_t at = kUsersAt + 1; at < page.size(); at += 2)
        page[at] = 1;
    return page;
}

} // namespace jet
