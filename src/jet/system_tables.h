#pragma once

#include "jet/byte_writer.h"
#include "jet/table_builder.h"
#include "jet/value.h"

#include <cstdint>
#include <vector>

namespace jet {

/// What the engine puts into a new Jet 4 database of its own: four system tables with their rows.
/// Together with the header they are, leftovers of memory aside, the engine's smallest database.

/// Pages of an empty database; everything else comes after them.
inline constexpr std::uint32_t kReservedPages = 16;
inline constexpr std::uint32_t kGlobalMapPage = 1;
inline constexpr std::uint32_t kSystemMapPage = 6;

TablePlan objectsTable();       ///< MSysObjects, the catalog
TablePlan rightsTable();        ///< MSysACEs
TablePlan queriesTable();       ///< MSysQueries, without rows
TablePlan relationshipsTable(); ///< MSysRelationships, without rows

/// Indexes of the two tables that have rows.
enum class ObjectsIndex { ParentIdName = 0, Id = 1 };
enum class RightsIndex { ObjectId = 0 };

/// An object of the catalog.
struct CatalogObject {
    std::int32_t id;
    std::int32_t parent;
    std::u16string name;
    std::int16_t type;
    std::vector<std::uint8_t> owner;
    std::int32_t flags;
};

/// Rights of a user to an object.
struct ObjectRight {
    std::int32_t object;
    std::vector<std::uint8_t> user;
    std::int32_t rights;
    bool inheritable;
};

std::vector<CatalogObject> engineObjects();
std::vector<ObjectRight> engineRights();
CatalogObject userTableObject(std::uint32_t definitionPage, std::u16string name);
std::vector<ObjectRight> userTableRights(std::uint32_t definitionPage);

/// The rows as the tables take them.
std::vector<Value> rowOf(const CatalogObject& object);
std::vector<Value> rowOf(const ObjectRight& right);

/// Page 0.
PageImage headerPage();

} // namespace jet
