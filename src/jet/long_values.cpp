#include "jet/long_values.h"

#include "jet/data_page.h"

#include <cstdint>
#include <string>
#include <unordered_set>

namespace jet {

namespace {

Failure damaged(const char* what) {
    return {Failure::Kind::Damaged, std::string("valeur longue ") + what};
}

} // namespace

Result<LongValues::Value> LongValues::fetch(Bytes cell) {
    if (!cell.has(0, kLongValueHeader))
        return damaged("plus courte que son en-tête");
    const std::uint32_t stored = cell.u32(0);
    const std::size_t length = stored & kLongValueLengthMask;
    const auto kind = static_cast<LongValueKind>(stored >> kLongValueKindShift);
    const RowPointer pointer(cell.u32(kLongValuePointerAt));
    if (length == 0)
        return Value{};
    if (kind == LongValueKind::Inline) // a length beyond the cell is cut to what is there
        return Value{{}, cell.from(kLongValueHeader).first(length)};
    if (length > source_->fileSize())
        return damaged("annoncée plus grande que le fichier");
    if (!spend(length))
        return damaged("refusée : la table en donne plus que le fichier n’en peut contenir");
    switch (kind) {
    case LongValueKind::Single:
        return fetchSingle(pointer, length);
    case LongValueKind::Chain:
        return fetchChain(pointer, length);
    default:
        return damaged("d’une sorte inconnue");
    }
}

bool LongValues::spend(std::uint64_t bytes) {
    if (bytes > recordBudget_ || bytes > passBudget_)
        return false;
    recordBudget_ -= bytes;
    passBudget_ -= bytes;
    return true;
}

Result<LongValues::Value> LongValues::fetchSingle(RowPointer at, std::size_t length) {
    const auto record = followPointer(*source_, at, kLongValueOwner, Slot::Kind::InPlace);
    if (!record)
        return damaged("absente de la page qu’elle nomme");
    if (record->row.size() < length)
        return damaged("plus courte qu’annoncé");
    return Value{record->page, record->row.first(length)};
}

Result<LongValues::Value> LongValues::fetchChain(RowPointer first, std::size_t length) {
    pieces_.clear(); // grows as pieces arrive, never on the word of the header
    std::unordered_set<std::uint32_t> visited;
    RowPointer next = first;
    // Each piece but the last fills a page, so there are no more of them than pages.
    while (visited.size() < source_->pageCount() && visited.insert(next.stored()).second) {
        const auto record = followPointer(*source_, next, kLongValueOwner, Slot::Kind::InPlace);
        if (!record)
            return damaged("dont un morceau est absent de la page qu’il nomme");
        const Bytes piece = record->row.from(kNextPieceBytes).first(length - pieces_.size());
        if (piece.empty())
            return damaged("dont un morceau est vide");
        pieces_.insert(pieces_.end(), piece.data(), piece.data() + piece.size());
        if (pieces_.size() == length)
            return Value{{}, Bytes(pieces_)};
        next = RowPointer(record->row.u32(0));
        if (next.page == 0)
            return damaged("plus courte qu’annoncé");
    }
    return damaged("dont la chaîne tourne en rond");
}

} // namespace jet
