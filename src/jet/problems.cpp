#include "jet/problems.h"

#include <utility>

namespace jet {

void Problems::add(std::string sentence) {
    ++count_;
    if (sentences_.size() < kKept)
        sentences_.push_back(std::move(sentence));
}

void Problems::add(const Problems& others) {
    for (const std::string& sentence : others.sentences_)
        add(sentence);
    count_ += others.count_ - others.sentences_.size();
}

} // namespace jet
