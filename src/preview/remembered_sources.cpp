#include "preview/remembered_sources.h"

#include "coursetool/source_text.h"

namespace preview {

using coursetool::ReadSource;
using coursetool::Remark;
using coursetool::Report;

std::shared_ptr<const ReadSource> RememberedSources::read(coursetool::SourceKind kind,
                                                          const std::filesystem::path& file,
                                                          Report& report) {
    Kept& kept = kept_[file.native()];
    kept.used = true;
    if (!kept.stamp || kept.stamp != files::stampOf(file))
        renew(kept, kind, file);
    for (const Remark& remark : kept.remarks)
        report.repeat(remark);
    return kept.record;
}

void RememberedSources::renew(Kept& kept, coursetool::SourceKind kind,
                              const std::filesystem::path& file) {
    // Before reading: what is written meanwhile then has another stamp.
    kept.stamp = files::stampOf(file);
    if (kept.stamp && !files::isSettled(*kept.stamp))
        kept.stamp.reset();
    Report told;
    auto bytes = coursetool::readBytes(file, told);
    if (bytes && bytes == kept.bytes)
        return;
    ++compiled_;
    kept.record = bytes ? reader_.readText(kind, file, *bytes, told) : nullptr;
    kept.bytes = std::move(bytes);
    kept.remarks = told.remarks();
}

void RememberedSources::forgetUnused() {
    std::erase_if(kept_, [](const auto& entry) { return !entry.second.used; });
    for (auto& [file, kept] : kept_)
        kept.used = false;
}

} // namespace preview
