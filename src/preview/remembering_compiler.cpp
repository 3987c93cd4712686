#include "preview/remembering_compiler.h"

namespace preview {

template <class Result, class Compile>
const Result& RememberingCompiler::recall(Memory<Result>& memory, std::string key,
                                          Compile compile) const {
    const auto found = memory.find(key);
    if (found != memory.end()) {
        found->second.used = true;
        return found->second.result;
    }
    ++compiled_;
    return memory.emplace(std::move(key), Kept<Result>{compile()}).first->second.result;
}

authoring::CompiledPage RememberingCompiler::page(std::string_view markdown, int firstLine,
                                                  std::string_view title) const {
    std::string key = std::to_string(firstLine) + '\n';
    key.append(title).append("\n").append(markdown);
    return recall(pages_, std::move(key),
                  [&] { return compiler_.page(markdown, firstLine, title); });
}

authoring::CompiledQuestion RememberingCompiler::question(std::string_view markdown, int firstLine,
                                                          std::optional<int> askedType) const {
    std::string key = std::to_string(firstLine) + '\n' + std::to_string(askedType.value_or(-1));
    key.append("\n").append(markdown);
    return recall(questions_, std::move(key),
                  [&] { return compiler_.question(markdown, firstLine, askedType); });
}

void RememberingCompiler::forgetUnused() {
    const auto sweep = [](auto& memory) {
        std::erase_if(memory, [](const auto& entry) { return !entry.second.used; });
        for (auto& [key, kept] : memory)
            kept.used = false;
    };
    sweep(pages_);
    sweep(questions_);
}

} // namespace preview
