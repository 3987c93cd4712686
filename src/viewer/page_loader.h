#pragma once

#include "coursedata/bound_record.h"
#include "markup/draw_page.h"
#include "shell/shared_state.h"
#include "viewer/collaborators.h"
#include "viewer/history.h"
#include "viewer/page_view.h"

namespace viewer {

/// Shows the record that is current, from the emptied page area to the buttons that fit the page.
class PageLoader {
public:
    /// Pages are drawn into `page`, which the view shows.
    PageLoader(shell::SharedState& state, coursedata::BoundRecord& record, PageView& view,
               const markup::DrawingTools& tools, markup::DrawnPage& page, VideoDevice& video);

    coursedata::BoundRecord& record() { return record_; }

    /// Takes over "Index" of the current record as `CurrentOrderIndex`.
    void takeOverOrderIndex();
    void showCurrentRecord();

private:
    void recordVisit();
    void drawPage();
    void showButtons();

    shell::SharedState& state_;
    coursedata::BoundRecord& record_;
    PageView& view_;
    markup::DrawingTools tools_;
    markup::DrawnPage& page_;
    VideoDevice& video_;
    History history_;
};

} // namespace viewer
