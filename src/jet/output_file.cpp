#include "jet/output_file.h"

#include "jet/format.h"

namespace jet {

namespace {

/// Bytes of pages that are written in one piece.
constexpr std::size_t kPiece = 64 * 1024;

} // namespace

Result<std::unique_ptr<OutputFile>> OutputFile::create(const std::filesystem::path& target) {
    std::unique_ptr<OutputFile> output(new OutputFile(target));
    if (const std::error_code error = output->file_.error())
        return fileFailure(target, "le fichier ne peut pas être créé", error);
    return output;
}

void OutputFile::write(std::uint32_t number, Bytes page) {
    const std::uint64_t at = std::uint64_t{number} * page.size();
    if (at != waitingAt_ + waiting_.size() || waiting_.size() >= kPiece) {
        writeWaiting();
        waitingAt_ = at;
    }
    waiting_.insert(waiting_.end(), page.data(), page.data() + page.size());
}

bool OutputFile::writeWaiting() {
    const bool written = file_.writeAt(waitingAt_, waiting_);
    waiting_.clear();
    return written;
}

Result<void> OutputFile::state() const {
    if (closed_)
        return Failure{Failure::Kind::Refused, "la base est déjà terminée"};
    if (const std::error_code error = file_.error())
        return fileFailure(target_, "l’écriture a échoué", error);
    if (pageCount_ > kJet4.maxPages)
        return Failure{Failure::Kind::Refused, "la base dépasserait 2 Go"};
    return {};
}

Result<void> OutputFile::putInPlace() {
    writeWaiting();
    if (auto fine = state(); !fine)
        return fine;
    closed_ = true;
    if (!file_.putInPlace())
        return fileFailure(target_, "le fichier ne peut pas être mis en place", file_.error());
    return {};
}

} // namespace jet
