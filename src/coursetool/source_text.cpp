#include "coursetool/source_text.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/input_file.h"
#include "text/utf8.h"

#include <algorithm>
#include <cstdint>

namespace coursetool {

namespace {

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Column, from 1, of the first character of the line that is no UTF-8; 0 when there is none.
int firstBadColumn(std::string_view line) {
    int column = 1;
    while (!line.empty()) {
        const std::size_t length = text::utf8CharacterLength(line);
        if (length == 0)
            return column;
        line.remove_prefix(length);
        ++column;
    }
    return 0;
}

int columnOf(std::string_view line, std::size_t offset) {
    const auto end = line.begin() + static_cast<std::ptrdiff_t>(offset);
    return 1 +
           static_cast<int>(end - line.begin() - std::count_if(line.begin(), end, isContinuation));
}

/// Calls `visit(line, number)` with each line, without its LF.
template <class Visit>
void forEachLine(std::string_view text, Visit visit) {
    for (int number = 1;; ++number) {
        const std::size_t end = text.find('\n');
        visit(text.substr(0, end), number);
        if (end == std::string_view::npos)
            return;
        text.remove_prefix(end + 1);
    }
}

/// Turns CR LF into LF; names each other CR.
std::string withoutCarriageReturns(std::string_view text, const std::string& file, Report& report) {
    std::string result;
    result.reserve(text.size());
    forEachLine(text, [&](std::string_view line, int number) {
        const bool last = line.data() + line.size() == text.data() + text.size();
        if (!last && line.ends_with('\r'))
            line.remove_suffix(1);
        if (const std::size_t found = line.find('\r'); found != std::string_view::npos)
            report.fault({file, number, columnOf(line, found)},
                         "retour chariot isolé : écrire une fin de ligne (LF), ou l’enlever");
        result += line;
        if (!last)
            result += '\n';
    });
    return result;
}

bool isFence(std::string_view line) {
    const std::size_t start = line.find_first_not_of('\\');
    return start != std::string_view::npos && line.substr(start) == kFence;
}

} // namespace

std::optional<std::string> readBytes(const std::filesystem::path& file, Report& report) {
    std::error_code error;
    const auto input = files::InputFile::open(file, error);
    if (!input) {
        report.fault({shown(file)}, "le fichier ne peut pas être lu : " + files::causeOf(error));
        return std::nullopt;
    }
    if (input->size() > kMaxSourceBytes) {
        report.fault({shown(file)}, "le fichier dépasse 64 Mo : ce n’est pas le texte d’une page");
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(input->size()), '\0');
    if (!input->read(0, {reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size()}, error)) {
        report.fault({shown(file)}, "le fichier ne peut pas être lu en entier");
        return std::nullopt;
    }
    return bytes;
}

void checkUtf8(std::string_view text, const std::string& file, Report& report) {
    forEachLine(text, [&](std::string_view line, int number) {
        if (const int column = firstBadColumn(line))
            report.fault({file, number, column},
                         "ce caractère n’est pas en UTF-8 : enregistrer le fichier en UTF-8");
    });
}

std::optional<std::string> readSource(const std::filesystem::path& file, Report& report) {
    const auto bytes = readBytes(file, report);
    return bytes ? sourceOfBytes(*bytes, shown(file), report) : std::nullopt;
}

std::optional<std::string> sourceOfBytes(std::string_view bytes, const std::string& file,
                                         Report& report) {
    const std::size_t faultsBefore = report.faultCount();
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    checkUtf8(bytes, file, report);
    std::string source = withoutCarriageReturns(bytes, file, report);
    if (report.faultCount() != faultsBefore)
        return std::nullopt;
    return source;
}

std::string toSourceText(std::string_view databaseText, bool& clean) {
    std::string source;
    source.reserve(databaseText.size());
    std::size_t lineStart = 0;
    const auto escapeFence = [&] {
        if (isFence(std::string_view(source).substr(lineStart)))
            source.insert(lineStart, 1, '\\');
    };
    for (std::size_t i = 0; i < databaseText.size(); ++i) {
        const char c = databaseText[i];
        if (c != '\r' && c != '\n') {
            source += c;
            continue;
        }
        const bool lineEnd =
            c == '\r' && i + 1 < databaseText.size() && databaseText[i + 1] == '\n';
        if (lineEnd)
            ++i;
        else
            clean = false;
        escapeFence();
        source += '\n';
        lineStart = source.size();
    }
    escapeFence();
    return source;
}

std::string toDatabaseText(std::string_view sourceText) {
    std::string text;
    text.reserve(sourceText.size() + sourceText.size() / 32);
    forEachLine(sourceText, [&](std::string_view line, int number) {
        if (number > 1)
            text += "\r\n";
        text += line.starts_with('\\') && isFence(line) ? line.substr(1) : line;
    });
    return text;
}

} // namespace coursetool
