#include "authoring/positions.h"

#include <QString>

#include <algorithm>

namespace authoring {

Positions::Positions(std::string_view source, int firstLine)
    : source_(source), firstLine_(firstLine), starts_{0} {
    for (std::size_t i = 0; i < source.size(); ++i)
        if (source[i] == '\n')
            starts_.push_back(i + 1);
}

std::size_t Positions::lineIndex(std::size_t offset) const {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), offset);
    return static_cast<std::size_t>(next - starts_.begin()) - 1;
}

int Positions::line(std::size_t offset) const {
    return firstLine_ + static_cast<int>(lineIndex(offset));
}

Fault Positions::fault(std::size_t offset, std::string sentence) const {
    const std::size_t start = starts_[lineIndex(offset)];
    const std::string_view before = source_.substr(start, offset - start);
    const auto characters = std::count_if(before.begin(), before.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    });
    return {line(offset), static_cast<int>(characters) + 1, std::move(sentence)};
}

void Faults::add(std::size_t offset, std::string sentence) {
    if (faults_.size() >= kMostFaults)
        return;
    Fault fault = positions_.fault(offset, std::move(sentence));
    const bool known = std::any_of(faults_.begin(), faults_.end(), [&](const Fault& other) {
        return other.line == fault.line && other.column == fault.column &&
               other.sentence == fault.sentence;
    });
    if (!known)
        faults_.push_back(std::move(fault));
}

void Faults::add(std::size_t offset, const QString& sentence) {
    add(offset, sentence.toStdString());
}

std::vector<Fault> Faults::sorted() const {
    std::vector<Fault> faults = faults_;
    std::stable_sort(faults.begin(), faults.end(), [](const Fault& a, const Fault& b) {
        return std::pair(a.line, a.column) < std::pair(b.line, b.column);
    });
    return faults;
}

} // namespace authoring
