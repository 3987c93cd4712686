// The file that the shell shares with its sibling programs: read, written and read again.

#include "shell/status_file.h"

#include "formats/all.h"
#include "seeds.h"
#include "shell/windows_1252.h"

#include <numeric>

namespace fuzz {

namespace {

using namespace std::literals;
using shell::StatusFile;

QStringList readAll(const StatusFile& file) {
    std::vector<int> records(StatusFile::kInstallationRecord);
    std::iota(records.begin(), records.end(), 1);
    return file.read(records);
}

void readOne(Input input) {
    const auto path = scratchFolder() / "TEMPKX.TMP";
    writeBytes(path, input);
    const StatusFile file(QString::fromStdString(path.string()));
    QStringList before = readAll(file);
    for (const QString& text : before)
        require(text.size() <= StatusFile::kLongestText, "a text fits its record");
    // What stands in one record is put into another: the others stay.
    const int from = static_cast<int>(input.size() % StatusFile::kInstallationRecord);
    const int to = 1 + static_cast<int>(input.size() / 7 % StatusFile::kInstallationRecord);
    require(file.write(to, before[from]), "what was read can be written");
    const QStringList after = readAll(file);
    before[to - 1] = before[from];
    // A record that was cut short is whole afterwards only where it was written.
    for (int i = 0; i < StatusFile::kInstallationRecord; ++i)
        require(after[i] == before[i] || after[i].startsWith(before[i]),
                "the other records stay as they are");
    require(std::filesystem::file_size(path) >= std::size_t(to) * StatusFile::kRecordLength,
            "a written record is a whole one");
    const QString text = shell::fromWindows1252(QByteArray(
        reinterpret_cast<const char*>(input.data()), static_cast<qsizetype>(input.size())));
    require(shell::fromWindows1252(shell::toWindows1252(text)) == text,
            "every byte stands for a character of its own");
}

} // namespace

const Format kStatusFile{
    "status-file",
    readOne,
    {{"fuzz/corpus/status-file", ""}},
    {"\x03\0OUI"sv, "\x03\0NON"sv, "\x7E\0"sv, "\x7F\0"sv, "\x80\0"sv, "\xFF\xFF"sv, "\0\0"sv,
     "\x81"sv},
    8 * 1024,
    shell::StatusFile::kRecordLength,
};

} // namespace fuzz
