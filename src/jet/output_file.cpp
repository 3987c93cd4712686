#include "jet/output_file.h"

#include "jet/format.h"

#include <string>
#include <system_error>
#include <utility>

namespace jet {

namespace {

constexpr int kNamesTried = 100;

/// A name beside the target that no file has; empty when all those tried are taken.
std::filesystem::path temporaryName(const std::filesystem::path& target) {
    for (int i = 0; i < kNamesTried; ++i) {
        std::filesystem::path name = target;
        name += ".partiel";
        name += std::to_string(i);
        std::error_code error;
        if (!std::filesystem::exists(name, error) && !error)
            return name;
    }
    return {};
}

} // namespace

Result<std::unique_ptr<OutputFile>> OutputFile::create(const std::filesystem::path& target) {
    std::unique_ptr<OutputFile> output(new OutputFile(target, temporaryName(target)));
    if (!output->file_.is_open())
        return output->failure("le fichier ne peut pas être créé");
    return output;
}

OutputFile::OutputFile(std::filesystem::path target, std::filesystem::path temporary)
    : target_(std::move(target)), temporary_(std::move(temporary)) {
    if (!temporary_.empty())
        file_.open(temporary_, std::ios::binary | std::ios::trunc);
}

OutputFile::~OutputFile() {
    if (!file_.is_open())
        return;
    file_.close();
    std::error_code ignored;
    std::filesystem::remove(temporary_, ignored);
}

void OutputFile::write(std::uint32_t number, Bytes page) {
    if (number != nextInOrder_)
        file_.seekp(static_cast<std::streamoff>(std::uint64_t{number} * page.size()));
    file_.write(reinterpret_cast<const char*>(page.data()),
                static_cast<std::streamsize>(page.size()));
    nextInOrder_ = number + 1;
    failed_ = failed_ || !file_;
}

Result<void> OutputFile::state() const {
    if (closed_)
        return Failure{Failure::Kind::Refused, "la base est déjà terminée"};
    if (failed_)
        return failure("l'écriture a échoué (disque plein ?)");
    if (pageCount_ > kJet4.maxPages)
        return Failure{Failure::Kind::Refused, "la base dépasserait 2 Go"};
    return {};
}

Result<void> OutputFile::putInPlace() {
    file_.flush();
    failed_ = failed_ || !file_;
    if (const auto fine = state(); !fine)
        return fine;
    file_.close();
    closed_ = true;
    std::error_code error;
    std::filesystem::rename(temporary_, target_, error);
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(temporary_, ignored);
        return failure("le fichier ne peut pas être mis en place");
    }
    return {};
}

Failure OutputFile::failure(const char* what) const {
    return fileFailure(Failure::Kind::System, target_, what);
}

} // namespace jet
