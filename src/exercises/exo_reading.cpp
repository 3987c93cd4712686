// The test's window read aloud.

#include "exercises/exo.h"
#include "exercises/verdict_line.h"
#include "look/outcome_line.h"
#include "look/page_panel.h"
#include "look/picture_box.h"
#include "viewer/page_reader.h"

#include <QEvent>
#include <QLabel>

#include <iterator>

namespace exercises {

namespace {

/// Over the title, which stays the same from question to question.
constexpr QRect kReading(176, 70, 464, 28);

} // namespace

void Exo::addReading() {
    reading_ = new look::OutcomeLine(body_);
    reading_->setGeometry(kReading);
    reading_->setAutoFillBackground(true);
    const auto tell = [this](look::OutcomeLine::Kind kind, const QString& line,
                             const look::LineAction& action) {
        reading_->raise();
        reading_->tell(kind, line, action);
    };
    reader_ = std::make_unique<viewer::PageReader>(
        parts_.voice,
        viewer::PageReader::Window{*Picture2_, *frame1_, tell, [this] { reading_->hide(); }});
}

/// A window over this one has the word.
bool Exo::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        stopReading();
    return QWidget::event(event);
}

/// Begins, or ends what goes on.
void Exo::readAloud() {
    if (!stopReading())
        reader_->read(partsToRead());
}

/// The question from what is at the top of the view on; from the very top with its number and what
/// the answer was worth.
std::vector<page::SpokenPart> Exo::partsToRead() const {
    std::vector<page::SpokenPart> parts;
    if (frame1_->isHidden() || !hasQuestions())
        return parts;
    const int top = frame1_->scrolled();
    if (top == 0) {
        parts.push_back(
            {questionName().replace(QStringLiteral(" / "), QStringLiteral(" sur ")), {}});
        if (!verdict_->isHidden())
            parts.push_back({verdict_->accessibleName(), {}});
    }
    std::vector<page::SpokenPart> question =
        spokenParts(Picture2_->readablePage(), {0, static_cast<double>(top)});
    std::move(question.begin(), question.end(), std::back_inserter(parts));
    return parts;
}

/// Whether anything was being read. What was said of it goes.
bool Exo::stopReading() {
    const bool stopped = reader_->stop();
    reading_->hide();
    return stopped;
}

} // namespace exercises
