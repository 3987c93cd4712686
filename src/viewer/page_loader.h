#pragma once

#include "markup/renderer.h"
#include "platform/recordset.h"
#include "shell/shared_state.h"
#include "viewer/bound_record.h"
#include "viewer/history.h"
#include "viewer/neighbours.h"
#include "viewer/page_view.h"

namespace viewer {

/// Shows the record that is current, from the emptied page area to the buttons that fit the page.
class PageLoader {
public:
    /// `records` may be null when the database could not be opened: pages then show nothing.
    PageLoader(shell::SharedState& state, platform::Recordset* records, BoundRecord& bound,
               PageView& view, markup::SourceWindow& source, markup::Renderer& renderer,
               VideoDevice& video);

    /// Moves to the record at `position`; no change when there is none.
    void moveTo(int position);
    /// Takes over "Index" of the current record as `CurrentOrderIndex`.
    void takeOverOrderIndex();
    void showCurrentRecord();

private:
    void prepareSurfaces();
    void recordVisit();
    void drawPage();
    void showButtons();

    shell::SharedState& state_;
    platform::Recordset* records_;
    BoundRecord& bound_;
    PageView& view_;
    markup::SourceWindow& source_;
    markup::Renderer& renderer_;
    VideoDevice& video_;
    History history_;
};

} // namespace viewer
