// The formats for clang's libFuzzer, which finds its way by what of the program an input reaches:
//   formats_libfuzzer --format=NAME [libFuzzer's own arguments]

#include "mutator.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

const fuzz::Format* format = nullptr;

fuzz::Bytes bytesOf(const std::uint8_t* data, std::size_t size) {
    const auto* const first = reinterpret_cast<const std::byte*>(data);
    return {first, first + size};
}

} // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    constexpr std::string_view kOption = "--format=";
    for (int i = 1; i < *argc; ++i)
        if (const std::string_view argument = (*argv)[i]; argument.starts_with(kOption))
            format = fuzz::findFormat(argument.substr(kOption.size()));
    if (!format) {
        std::fputs("--format=NAME: no format of that name\n", stderr);
        std::exit(2);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    format->readOne({reinterpret_cast<const std::byte*>(data), size});
    return 0;
}

/// Its own changes and ours, which know the words of the format and where its structures begin.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned int seed) {
    if (seed % 2 == 0)
        return LLVMFuzzerMutate(data, size, most);
    fuzz::Random random(seed);
    fuzz::Bytes bytes = bytesOf(data, size);
    const fuzz::Bytes before = bytes;
    fuzz::mutate(bytes, before, *format, random);
    bytes.resize(std::min(bytes.size(), most));
    if (!bytes.empty())
        std::memcpy(data, bytes.data(), bytes.size());
    return bytes.size();
}
