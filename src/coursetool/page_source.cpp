#include "coursetool/page_source.h"

#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "text/utf8.h"

namespace coursetool {

std::optional<QString> readPageSource(const std::filesystem::path& file, Report& report) {
    const auto bytes = readBytes(file, report);
    if (!bytes)
        return std::nullopt;
    checkUtf8(*bytes, shown(file), report);
    const std::u16string source = text::toUtf16(*bytes);
    return QString::fromUtf16(source.data(), static_cast<qsizetype>(source.size()));
}

} // namespace coursetool
