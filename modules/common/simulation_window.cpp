#include "common/simulation_window.h"

#include "common/exercise_panel.h"
#include "common/module_run.h"
#include "common/plain_label.h"
#include "common/qt_text.h"
#include "common/transport_bar.h"
#include "look/dress.h"
#include "look/pixels.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

namespace common {

namespace {

constexpr QSize kSize(920, 656);
constexpr QSize kTaskSize(960, 728); ///< with the task above the drawing
constexpr int kLeftWidth = 264;
constexpr int kMargin = 12;

/// A line for the pupil, framed.
class Notice : public QLabel {
public:
    explicit Notice(const QString& words) {
        setTextFormat(Qt::PlainText);
        setText(words);
        setWordWrap(true);
        setMargin(kGap);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(this);
            look::drawFrame(painter, rect(), 0, look::kRule, QColor::fromRgb(look::kHoverTint));
        }
        QLabel::paintEvent(event);
    }
};

} // namespace

SimulationWindow::SimulationWindow(const About& about, const Opening& opening, const Task* task)
    : about_(about), edition_(opening.edition), hasTask_(task != nullptr),
      right_(column(new QWidget(this))) {
    setWindowTitle(common::windowTitle(qtText(about.title), about.module));
    if (task != nullptr) {
        auto* panel = new ExercisePanel(*task);
        panel->onSolved([this] { showResults(); });
        panel->onNext(opening.next);
        right_->addWidget(panel);
    }
    if (!opening.notice.isEmpty())
        right_->addWidget(new Notice(opening.notice));
}

void SimulationWindow::arrange(QWidget* controls, std::initializer_list<QWidget*> views,
                               const QWidget* main) {
    for (QWidget* view : views)
        right_->addWidget(view, view == main ? 1 : 0);
    auto* centre = new QWidget;
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(16);
    layout->addWidget(left(controls));
    layout->addWidget(right_->parentWidget(), 1);
    setCentralWidget(centre);
    resize((hasTask_ ? kTaskSize : kSize).boundedTo(screen()->availableSize()));
    look::dress(*this);
    setFocus(); // keys are for the simulation, until somebody goes elsewhere
}

QWidget* SimulationWindow::left(QWidget* controls) const {
    auto* widget = new QWidget;
    widget->setFixedWidth(kLeftWidth);
    QVBoxLayout* layout = column(widget);
    layout->addWidget(controls, 1);
    if (!edition_.isEmpty())
        layout->addWidget(paragraph(edition_, {.pixels = look::kSmallPx, .ink = look::kMuted}));
    return widget;
}

QTabWidget* SimulationWindow::tabs(std::initializer_list<QWidget*> views) const {
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(false);
    for (QWidget* view : views)
        tabs->addTab(view, qtText(about_.views[static_cast<std::size_t>(tabs->count())]));
    return tabs;
}

QWidget* SimulationWindow::transport(Player& player, std::function<Reading()> moment) {
    transport_ = new TransportBar(player, *about_.transport, std::move(moment));
    return transport_;
}

void SimulationWindow::keyPressEvent(QKeyEvent* event) {
    if (transport_ == nullptr || !transport_->takeKey(*event))
        QMainWindow::keyPressEvent(event);
}

QVBoxLayout* column(QWidget* widget) {
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    return layout;
}

} // namespace common
