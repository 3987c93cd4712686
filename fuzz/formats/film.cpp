// Headers of AVI files, which tell how fast a film is and how long.

#include "formats/all.h"
#include "platform/avi_header.h"

namespace fuzz {

namespace {

using namespace std::literals;

void readOne(Input input) {
    const auto header = platform::readAviHeader(input);
    if (!header)
        return;
    require(header->framesPerSecond == 0 || (header->framesPerSecond >= platform::kSlowest &&
                                             header->framesPerSecond <= platform::kFastest),
            "a film is neither too slow nor too fast");
    require(header->frames >= 0 && header->frames <= platform::kMostFrames,
            "a film has frames within its bounds");
}

} // namespace

const Format kFilm{
    "film",
    readOne,
    {{"fuzz/corpus/film", ""}},
    {"RIFF"sv, "AVI "sv, "LIST"sv, "hdrl"sv, "avih"sv, "strl"sv, "strh"sv, "strf"sv, "vids"sv,
     "auds"sv, "movi"sv, "idx1"sv, "JUNK"sv, "\x38\0\0\0"sv, "\xFF\xFF\xFF\xFF"sv, "\0\0\0\0"sv},
    platform::kAviHeaderBytes,
};

} // namespace fuzz
