#pragma once

#include "authoring/compiled.h"

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

namespace authoring {

/// Lines and columns of the offsets of a source, in bytes.
class Positions {
public:
    Positions(std::string_view source, int firstLine);

    int line(std::size_t offset) const;
    Fault fault(std::size_t offset, std::string sentence) const;

private:
    std::size_t lineIndex(std::size_t offset) const;

    std::string_view source_;
    int firstLine_;
    std::vector<std::size_t> starts_;
};

/// Faults told of one source: whoever has mended these sees the rest.
inline constexpr std::size_t kMostFaults = 100;

/// Collects what is wrong with a source, each fault once.
class Faults {
public:
    explicit Faults(const Positions& positions) : positions_(positions) {}

    void add(std::size_t offset, std::string sentence);
    void add(std::size_t offset, const QString& sentence);
    bool any() const { return !faults_.empty(); }
    /// Line and column of an offset; there need be nothing wrong there.
    Fault place(std::size_t offset) const { return positions_.fault(offset, {}); }
    /// In the order of the source.
    std::vector<Fault> sorted() const;

private:
    const Positions& positions_;
    std::vector<Fault> faults_;
};

} // namespace authoring
