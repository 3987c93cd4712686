#pragma once

#include "coursedata/bound_record.h"
#include "coursedata/recordset.h"
#include "markup/renderer.h"
#include "shell/shared_state.h"
#include "viewer/history.h"
#include "viewer/neighbours.h"
#include "viewer/page_view.h"

namespace viewer {

/// Shows the record that is current, from the emptied page area to the buttons that fit the page.
class PageLoader {
public:
    PageLoader(shell::SharedState& state, coursedata::BoundRecord& bound, PageView& view,
               markup::SourceWindow& source, markup::Renderer& renderer, VideoDevice& video);

    /// The table "cours", once it is open; its first record becomes current. Without it (the
    /// database could not be opened) pages show nothing.
    void bindTo(coursedata::Recordset& records);
    /// Null before bindTo().
    const coursedata::Recordset* records() const { return records_; }

    /// Position of the current record, from 0; -1 when there is none.
    int position() const { return records_ ? records_->absolutePosition() : -1; }
    /// Moves to the record at `position`; no change when there is none.
    void moveTo(int position);
    /// Takes over "Index" of the current record as `CurrentOrderIndex`.
    void takeOverOrderIndex();
    void showCurrentRecord();

private:
    void freeLinks();
    void prepareSurfaces();
    void recordVisit();
    void drawPage();
    void showButtons();

    shell::SharedState& state_;
    coursedata::Recordset* records_ = nullptr;
    coursedata::BoundRecord& bound_;
    PageView& view_;
    markup::SourceWindow& source_;
    markup::Renderer& renderer_;
    VideoDevice& video_;
    History history_;
};

} // namespace viewer
