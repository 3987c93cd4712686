#include "jet/database_file.h"

#include "files/cause.h"
#include "files/input_file.h"
#include "files/whole_file.h"
#include "jet/byte_sink.h"
#include "jet/byte_source.h"

#include <optional>
#include <string>
#include <utility>

namespace jet {

namespace {

class FileSource final : public ByteSource {
public:
    explicit FileSource(files::InputFile file) : file_(std::move(file)) {}

    std::uint64_t size() const override { return file_.size(); }
    bool read(std::uint64_t offset, std::span<std::uint8_t> bytes) const override {
        std::error_code ignored;
        return file_.read(offset, bytes, ignored);
    }

private:
    files::InputFile file_;
};

class FileSink final : public ByteSink {
public:
    explicit FileSink(const std::filesystem::path& target) : target_(target), file_(target) {}

    std::error_code error() const { return file_.error(); }

    void writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes) override {
        file_.writeAt(offset, bytes);
    }
    Result<void> state() const override {
        if (const std::error_code error = file_.error())
            return fileFailure(target_, files::kFileNotWritten, error);
        return {};
    }
    Result<void> putInPlace() override {
        if (!file_.putInPlace())
            return fileFailure(target_, files::kFileNotPutInPlace, file_.error());
        return {};
    }

private:
    std::filesystem::path target_;
    files::WholeFile file_;
};

std::string shownName(const std::filesystem::path& path) {
    const std::u8string name = path.filename().u8string();
    return {name.begin(), name.end()};
}

Result<std::unique_ptr<ByteSource>> openSource(const std::filesystem::path& path) {
    std::error_code error;
    auto file = files::InputFile::open(path, error);
    if (!file)
        return fileFailure(path, "le fichier ne peut pas être ouvert", error);
    return std::unique_ptr<ByteSource>(std::make_unique<FileSource>(*std::move(file)));
}

} // namespace

Result<Database> openDatabase(const std::filesystem::path& path) {
    auto source = openSource(path);
    if (!source)
        return source.error();
    return Database::open(*std::move(source), shownName(path));
}

Result<std::shared_ptr<PageSource>> openPages(const std::filesystem::path& path) {
    auto source = openSource(path);
    if (!source)
        return source.error();
    return PageSource::open(*std::move(source), shownName(path));
}

Result<DatabaseWriter> createDatabase(const std::filesystem::path& path) {
    auto sink = std::make_unique<FileSink>(path);
    if (const std::error_code error = sink->error())
        return fileFailure(path, files::kFileNotCreated, error);
    return DatabaseWriter::create(std::move(sink));
}

Failure fileFailure(Failure::Kind kind, const std::filesystem::path& path, const char* what) {
    return databaseFailure(kind, shownName(path), what);
}

Failure fileFailure(const std::filesystem::path& path, const char* what, std::error_code error) {
    Failure failure = fileFailure(Failure::Kind::System, path, what);
    if (error)
        failure.sentence += " : " + files::causeOf(error);
    return failure;
}

} // namespace jet
