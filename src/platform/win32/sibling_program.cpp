#include "platform/sibling_program.h"

#include <process.h>
#include <windows.h>

#include <cstdlib>
#include <filesystem>

namespace platform {

namespace {

/// As the program's start-up code takes it apart again.
std::wstring quoted(const std::wstring& word) {
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"')
            text.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        text += c;
    }
    return text.append(backslashes, L'\\') + L'"';
}

} // namespace

std::string becomeSibling(const std::string& name, const std::vector<std::string>& arguments) {
    wchar_t self[32'768];
    if (GetModuleFileNameW(nullptr, self, 32'768) == 0)
        return "GetModuleFileName";
    const auto program = std::filesystem::path(self).parent_path() / (name + ".exe");
    std::vector<std::wstring> quotedWords{quoted(program.wstring())};
    for (const std::string& argument : arguments)
        quotedWords.push_back(quoted(
            std::filesystem::path(std::u8string(argument.begin(), argument.end())).wstring()));
    std::vector<const wchar_t*> words;
    for (const std::wstring& word : quotedWords)
        words.push_back(word.c_str());
    words.push_back(nullptr);
    const auto status = _wspawnv(_P_WAIT, program.c_str(), words.data());
    if (status == -1)
        return "_wspawnv";
    std::exit(static_cast<int>(status));
}

} // namespace platform
