#pragma once

#include "look/outcome_line.h"
#include "page/spoken_page.h"

#include <functional>
#include <vector>

namespace look {
class PagePanel;
class PictureBox;
} // namespace look

namespace viewer {

class ReadingAloud;

/// Has what stands on a surface read aloud: tints what is being said, scrolls to it, and tells on a
/// line of the window that this goes on, or why it does not.
class PageReader {
public:
    struct Window {
        look::PictureBox& surface;
        look::PagePanel& panel; ///< in which the surface scrolls
        std::function<void(look::OutcomeLine::Kind, const QString&, const look::LineAction&)> tell;
        std::function<void()> tellNoMore;
    };
    /// All outlive the reader.
    PageReader(ReadingAloud& voice, Window window);

    /// Areas of parts are those of the surface. Without parts it is told that there are none.
    void read(std::vector<page::SpokenPart> parts);
    /// Whether anything was being read.
    bool stop();

private:
    void follow(const page::SpokenPart& part);
    void end();

    ReadingAloud& voice_;
    Window window_;
};

} // namespace viewer
