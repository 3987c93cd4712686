#include "authoring/coverage.h"

#include <QString>

#include <algorithm>
#include <set>

namespace authoring {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
}

/// Labels are the same in any letter case, and with other blanks.
QString labelOf(std::string_view label) {
    return QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()))
        .simplified()
        .toCaseFolded();
}

} // namespace

void Coverage::mark(std::size_t offset, std::size_t size) {
    const std::size_t end = std::min(offset + size, source_.size());
    std::fill(read_.begin() + static_cast<std::ptrdiff_t>(offset),
              read_.begin() + static_cast<std::ptrdiff_t>(end), true);
}

void Coverage::nameUnread(Faults& faults) {
    markUsedDefinitions();
    for (std::size_t i = 0; i < source_.size(); ++i) {
        if (read_[i] || !isLetter(source_[i]))
            continue;
        std::size_t end = i;
        while (end < source_.size() && !read_[end] && isLetter(source_[end]))
            ++end;
        faults.add(i, "« " + std::string(source_.substr(i, end - i)) +
                          " » ne serait nulle part sur la page : une cellule de trop, une "
                          "définition dont aucun lien ne se sert, des mots après ``` ?");
        i = source_.find('\n', i);
        if (i == std::string_view::npos)
            return;
    }
}

/// "[optique]: page:12" was read when its target was, and with it what names it: "[mots][optique]".
void Coverage::markUsedDefinitions() {
    std::set<QString> used;
    for (std::size_t line = 0; line < source_.size();) {
        const std::size_t end = std::min(source_.find('\n', line), source_.size());
        const std::size_t open = source_.find_first_not_of(" >", line);
        line = end + 1;
        if (open >= end || source_[open] != '[')
            continue;
        const std::size_t close = source_.substr(open, end - open).find("]:");
        if (close == source_.npos)
            continue;
        const std::size_t target = source_.find_first_not_of(" \t\n<", open + close + 2);
        if (target == source_.npos || !read_[target])
            continue;
        used.insert(labelOf(source_.substr(open + 1, close - 1)));
        mark(open, close);
    }
    for (std::size_t at = source_.find("]["); at != source_.npos && !used.empty();
         at = source_.find("][", at + 1)) {
        const std::size_t end = source_.find(']', at + 2);
        if (end != source_.npos && used.contains(labelOf(source_.substr(at + 2, end - at - 2))))
            mark(at + 2, end - at - 2);
    }
}

} // namespace authoring
