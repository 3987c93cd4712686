#include "common/reading.h"

namespace common {

std::u16string readingsInWords(const ReadingGroup& group) {
    std::u16string words = group.name + u"\u00A0:";
    for (std::size_t i = 0; i < group.readings.size(); ++i) {
        const Reading& one = group.readings[i];
        words.append(i > 0 ? u" ; " : u" ").append(one.spoken.empty() ? one.name : one.spoken);
        words.append(u"\u00A0= ").append(one.value);
    }
    return words + u'.';
}

} // namespace common
