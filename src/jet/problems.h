#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace jet {

/// What was passed over while reading a damaged file, in the order it was met. Only the first
/// sentences are kept, as a ruined file can give one for each of its rows; all are counted.
class Problems {
public:
    static constexpr std::size_t kKept = 20;

    void add(std::string sentence);
    void add(const Problems& others);

    bool empty() const { return count_ == 0; }
    std::size_t count() const { return count_; }
    /// At most kKept sentences, French, as in Failure.
    const std::vector<std::string>& sentences() const { return sentences_; }

private:
    std::size_t count_ = 0;
    std::vector<std::string> sentences_;
};

} // namespace jet
