#include "projectile/main_window.h"

#include "common/module_run.h"
#include "common/plain_label.h"
#include "look/check_box.h"
#include "look/dress.h"
#include "look/pixels.h"
#include "look/scroll_bar.h"
#include "projectile/energy_plot.h"
#include "projectile/exercise_panel.h"
#include "projectile/formula_page.h"
#include "projectile/launch_panel.h"
#include "projectile/readings.h"
#include "projectile/trajectory_plot.h"
#include "projectile/transport_bar.h"
#include "projectile/value_table.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>

namespace projectile {

namespace {

constexpr int kModule = 23;
constexpr QSize kSize(920, 656);
constexpr QSize kExerciseSize(960, 728); ///< with the task above the drawing
constexpr int kLeftWidth = 264;
constexpr int kMargin = 12;

/// A line for the pupil, framed.
class Notice : public QLabel {
public:
    explicit Notice(const QString& words) {
        setTextFormat(Qt::PlainText);
        setText(words);
        setWordWrap(true);
        setMargin(common::kGap);
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

QVBoxLayout* column(QWidget* widget) {
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    return layout;
}

} // namespace

MainWindow::MainWindow(const Opening& opening) {
    setWindowTitle(common::windowTitle(QStringLiteral("Mouvement d’un projectile"), kModule));
    if (opening.exercise)
        experiment_.setSituation(*opening.exercise);
    auto* centre = new QWidget;
    auto* layout = new QHBoxLayout(centre);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(16);
    layout->addWidget(left(opening.edition));
    layout->addWidget(right(opening), 1);
    setCentralWidget(centre);
    resize((opening.exercise ? kExerciseSize : kSize).boundedTo(screen()->availableSize()));
    look::dress(*this);
    setFocus(); // the space bar is for the simulation, until somebody goes elsewhere
}

QWidget* MainWindow::left(const QString& edition) {
    auto* widget = new QWidget;
    widget->setFixedWidth(kLeftWidth);
    auto* layout = column(widget);
    layout->addWidget(new LaunchPanel(experiment_), 1);
    if (!edition.isEmpty())
        layout->addWidget(
            common::paragraph(edition, {.pixels = look::kSmallPx, .ink = look::kMuted}));
    return widget;
}

QWidget* MainWindow::right(const Opening& opening) {
    auto* widget = new QWidget;
    auto* layout = column(widget);
    readings_ = new Readings(experiment_);
    if (opening.exercise) {
        auto* panel = new ExercisePanel(*opening.exercise);
        readings_->setFlightHidden(opening.exercise->hidesResults);
        panel->onSolved([this] { readings_->setFlightHidden(false); });
        panel->onNext(opening.next);
        layout->addWidget(panel);
    }
    if (!opening.notice.isEmpty())
        layout->addWidget(new Notice(opening.notice));
    auto* tabs = new QTabWidget;
    tabs->setDocumentMode(false);
    tabs->addTab(trajectoryTab(), QStringLiteral("Trajectoire"));
    tabs->addTab(new EnergyPlot(experiment_), QStringLiteral("Énergies"));
    tabs->addTab(new ValueTable(experiment_), QStringLiteral("Tableau"));
    auto* formulas = new QScrollArea;
    formulas->setWidget(new FormulaPage(experiment_));
    formulas->setWidgetResizable(true);
    formulas->setFrameShape(QFrame::NoFrame);
    formulas->setVerticalScrollBar(new look::ScrollBar(formulas, look::ScrollBar::Top::Minimum));
    tabs->addTab(formulas, QStringLiteral("Formules"));
    layout->addWidget(tabs, 1);
    transport_ = new TransportBar(experiment_);
    layout->addWidget(readings_);
    layout->addWidget(transport_);
    return widget;
}

QWidget* MainWindow::trajectoryTab() {
    auto* widget = new QWidget;
    auto* layout = column(widget);
    layout->setSpacing(0);
    plot_ = new TrajectoryPlot(experiment_);
    layout->addWidget(plot_, 1);
    auto* choices = new QHBoxLayout;
    choices->setContentsMargins(12, 2, 12, 8);
    choices->setSpacing(18);
    struct Choice {
        const char16_t* caption;
        bool Shown::*shown;
    };
    auto shown = std::make_shared<Shown>();
    for (const Choice& choice :
         {Choice{u"vitesse", &Shown::speed}, Choice{u"ses composantes", &Shown::components},
          Choice{u"accélération", &Shown::acceleration}, Choice{u"points", &Shown::points}}) {
        auto* box = new look::CheckBox(QString::fromUtf16(choice.caption), widget);
        box->setChecked((*shown).*choice.shown);
        box->setFocusPolicy(Qt::TabFocus); // a click leaves the space bar to the simulation
        connect(box, &QCheckBox::toggled, plot_, [this, shown, choice](bool checked) {
            (*shown).*choice.shown = checked;
            plot_->setShown(*shown);
        });
        choices->addWidget(box);
    }
    choices->addStretch(1);
    layout->addLayout(choices);
    return widget;
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) // held down it starts, and does not stop again
            transport_->toggle();
        return;
    case Qt::Key_Home:
        transport_->reset();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        transport_->step(event->key() == Qt::Key_Left ? -1 : 1);
        return;
    default:
        QMainWindow::keyPressEvent(event);
    }
}

} // namespace projectile
