#include "jet/output_file.h"

#include "files/cause.h"
#include "jet/format.h"

namespace jet {

namespace {

/// Bytes of pages that are written in one piece.
constexpr std::size_t kPiece = 64 * 1024;

} // namespace

void OutputFile::write(std::uint32_t number, Bytes page) {
    const std::uint64_t at = std::uint64_t{number} * page.size();
    if (at != waitingAt_ + waiting_.size() || waiting_.size() >= kPiece) {
        writeWaiting();
        waitingAt_ = at;
    }
    waiting_.insert(waiting_.end(), page.data(), page.data() + page.size());
}

void OutputFile::writeWaiting() {
    sink_->writeAt(waitingAt_, waiting_);
    waiting_.clear();
}

Result<void> OutputFile::state() const {
    if (closed_)
        return Failure{Failure::Kind::Refused, "la base est déjà terminée"};
    if (auto fine = sink_->state(); !fine)
        return fine;
    if (pageCount_ > kJet4.maxPages)
        return Failure{Failure::Kind::Refused, "la base dépasserait 2 Go"};
    return {};
}

Result<void> OutputFile::putInPlace() {
    writeWaiting();
    if (auto fine = state(); !fine)
        return fine;
    closed_ = true;
    return sink_->putInPlace();
}

} // namespace jet
