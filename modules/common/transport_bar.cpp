#include "common/transport_bar.h"

#include "common/formula_label.h"
#include "common/french_number.h"
#include "common/measured_slider.h"
#include "common/plain_label.h"
#include "common/qt_text.h"
#include "look/button.h"
#include "look/tool_tip.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <cmath>
#include <utility>

namespace common {

namespace {

constexpr int kIconButtonWidth = 40;
constexpr int kStartWidth = 100;
constexpr int kReadingWidth = 88;

/// Between two pictures while it runs.
constexpr int kPictureMilliseconds = 16;

/// Of the slider.
constexpr int kPositions = 1000;

/// A machine that slept does not make the simulation jump; s.
constexpr double kLongestPause = 0.25;

constexpr double kRates[] = {0.1, 0.25, 0.5, 1, 2, 5, 10};
constexpr int kUsualRate = 3;

} // namespace

TransportBar::TransportBar(Player& player, const Transport& about, std::function<Reading()> moment,
                           QWidget* parent)
    : QWidget(parent), player_(player), about_(about), moment_(std::move(moment)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    addButtons();
    addSlider();
    if (about_.hasRates)
        addRates();
    timer_.setInterval(kPictureMilliseconds);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &TransportBar::tick);
    player_.onMoved([this] { show(); });
    show();
}

void TransportBar::addButtons() {
    const auto add = [this](const QString& icon, const QString& name, auto action) {
        auto* button = new look::Button({}, {.icon = icon}, this);
        button->setFixedWidth(kIconButtonWidth);
        button->setAccessibleName(name);
        look::setToolTip(*button, name);
        connect(button, &QPushButton::clicked, this, action);
        layout()->addWidget(button);
        return button;
    };
    add(QStringLiteral("to-start"), QStringLiteral("Revenir au départ"), [this] { reset(); });
    add(QStringLiteral("back-step"), QStringLiteral("Un pas en arrière"), [this] {
        step(-1);
    })->setAutoRepeat(true);
    start_ =
        new look::Button(QStringLiteral("Départ"),
                         {.kind = look::Button::Kind::Main, .icon = QStringLiteral("play")}, this);
    start_->setFixedWidth(kStartWidth);
    connect(start_, &QPushButton::clicked, this, [this] { toggle(); });
    layout()->addWidget(start_);
    add(QStringLiteral("step"), QStringLiteral("Un pas en avant"), [this] {
        step(1);
    })->setAutoRepeat(true);
}

void TransportBar::addSlider() {
    slider_ = new MeasuredSlider({[this](int position) { return timeAt(position); },
                                  [this](double time) { return positionAt(time); },
                                  QStringLiteral("s"), 2});
    slider_->setRange(0, kPositions);
    slider_->setMinimumWidth(64); // it would be the first to give way
    slider_->setAccessibleName(qtText(about_.slider));
    slider_->setPageStep(kPositions / 20);
    connect(slider_, &QSlider::valueChanged, this, [this](int position) {
        player_.play([t = timeAt(position)](Playback& playback) { playback.seek(t); });
    });
    reading_ = new FormulaLabel({}, {}, look::kLabelPx);
    reading_->setFixedWidth(kReadingWidth);
    reading_->setAlignment(Qt::AlignRight);
    static_cast<QHBoxLayout*>(layout())->addWidget(slider_, 1);
    layout()->addWidget(reading_);
}

double TransportBar::timeAt(int position) const {
    return player_.playback().duration() * position / kPositions;
}

int TransportBar::positionAt(double time) const {
    const double duration = player_.playback().duration();
    return duration > 0 ? static_cast<int>(std::lround(time / duration * kPositions)) : 0;
}

void TransportBar::addRates() {
    auto* rates = new QComboBox;
    for (const double rate : kRates)
        rates->addItem(QStringLiteral("×\u00A0") + qtText(frenchDigits(rate, 2)));
    rates->setCurrentIndex(kUsualRate);
    rates->setAccessibleName(QStringLiteral("Vitesse de la simulation"));
    // Where the toolkit takes the line chosen for the name.
    rates->setAccessibleDescription(rates->accessibleName());
    look::setToolTip(*rates, QStringLiteral("ralenti ou accéléré"));
    connect(rates, &QComboBox::currentIndexChanged, this, [this](int which) {
        player_.play([which](Playback& playback) { playback.setRate(kRates[which]); });
    });
    layout()->addWidget(rates);
}

void TransportBar::toggle() {
    player_.play([](Playback& playback) { playback.toggle(); });
}

void TransportBar::reset() {
    player_.play([](Playback& playback) { playback.reset(); });
}

void TransportBar::step(int pictures) {
    player_.play([this, pictures](Playback& playback) { playback.step(pictures * about_.step); });
}

void TransportBar::tick() {
    const double passed = static_cast<double>(clock_.restart()) / 1000;
    player_.play(
        [passed](Playback& playback) { playback.advance(std::min(passed, kLongestPause)); });
}

void TransportBar::show() {
    const Playback& playback = player_.playback();
    if (playback.isRunning() && !timer_.isActive()) {
        clock_.start();
        timer_.start();
    } else if (!playback.isRunning()) {
        timer_.stop();
    }
    const QString caption =
        playback.isRunning() ? QStringLiteral("Pause") : QStringLiteral("Départ");
    if (start_->text() != caption) {
        start_->setCaption(caption);
        start_->setIconName(playback.isRunning() ? QStringLiteral("pause")
                                                 : QStringLiteral("play"));
    }
    start_->setEnabled(playback.duration() > 0);
    look::setToolTip(*start_, playback.duration() > 0 ? QStringLiteral("ou barre d’espace")
                                                      : qtText(about_.nothing));
    const QSignalBlocker blocker(slider_);
    slider_->setValue(positionAt(playback.time()));
    const Reading moment = moment_();
    const QString pattern = QStringLiteral("%1\u00A0=\u00A0%2");
    const QString name = qtText(moment.name);
    const QString value = qtText(moment.value);
    reading_->setFormula(pattern.arg(name, QStringLiteral("\\text{%1}").arg(value)),
                         pattern.arg(name, value));
}

bool TransportBar::takeKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Space:
        if (!event.isAutoRepeat()) // held down it starts, and does not stop again
            toggle();
        return true;
    case Qt::Key_Home:
        reset();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        step(event.key() == Qt::Key_Left ? -1 : 1);
        return true;
    default:
        return false;
    }
}

} // namespace common
