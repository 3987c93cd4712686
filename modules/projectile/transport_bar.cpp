#include "projectile/transport_bar.h"

#include "common/formula_label.h"
#include "common/french_number.h"
#include "common/measured_slider.h"
#include "common/plain_label.h"
#include "look/button.h"
#include "look/tool_tip.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>

namespace projectile {

namespace {

constexpr int kIconButtonWidth = 40;
constexpr int kStartWidth = 100;
constexpr int kReadingWidth = 88;

/// Between two pictures while it runs.
constexpr int kPictureMilliseconds = 16;

/// One step by hand, in seconds of the flight.
constexpr double kStep = 0.02;

/// A flight has so many positions of the slider.
constexpr int kPositions = 1000;

/// A machine that slept does not make the projectile jump; s.
constexpr double kLongestPause = 0.25;

constexpr double kRates[] = {0.1, 0.25, 0.5, 1, 2, 5, 10};
constexpr int kUsualRate = 3;

} // namespace

TransportBar::TransportBar(Experiment& experiment, QWidget* parent)
    : QWidget(parent), experiment_(experiment) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(common::kGap);
    addButtons();
    addTime();
    addRates();
    timer_.setInterval(kPictureMilliseconds);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &TransportBar::tick);
    experiment_.onChanged([this] { show(); });
    experiment_.onMoved([this] { show(); });
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

void TransportBar::addTime() {
    time_ = new common::MeasuredSlider({[this](int position) { return timeAt(position); },
                                        [this](double time) { return positionAt(time); },
                                        QStringLiteral("s"), 2});
    time_->setRange(0, kPositions);
    time_->setMinimumWidth(64); // it would be the first to give way
    time_->setAccessibleName(QStringLiteral("Temps"));
    time_->setPageStep(kPositions / 20);
    connect(time_, &QSlider::valueChanged, this, [this](int position) {
        experiment_.play([time = timeAt(position)](Playback& playback) { playback.seek(time); });
    });
    reading_ = new common::FormulaLabel({}, {}, look::kLabelPx);
    reading_->setFixedWidth(kReadingWidth);
    reading_->setAlignment(Qt::AlignRight);
    static_cast<QHBoxLayout*>(layout())->addWidget(time_, 1);
    layout()->addWidget(reading_);
}

double TransportBar::timeAt(int position) const {
    return experiment_.playback().duration() * position / kPositions;
}

int TransportBar::positionAt(double time) const {
    const double duration = experiment_.playback().duration();
    return duration > 0 ? static_cast<int>(std::lround(time / duration * kPositions)) : 0;
}

void TransportBar::addRates() {
    rates_ = new QComboBox;
    for (const double rate : kRates)
        rates_->addItem(QStringLiteral("×\u00A0") + common::frenchDigits(rate, 2));
    rates_->setCurrentIndex(kUsualRate);
    rates_->setAccessibleName(QStringLiteral("Vitesse de la simulation"));
    // Where the toolkit takes the line chosen for the name.
    rates_->setAccessibleDescription(rates_->accessibleName());
    look::setToolTip(*rates_, QStringLiteral("ralenti ou accéléré"));
    connect(rates_, &QComboBox::currentIndexChanged, this, [this](int which) {
        experiment_.play([which](Playback& playback) { playback.setRate(kRates[which]); });
    });
    layout()->addWidget(rates_);
}

void TransportBar::toggle() {
    experiment_.play([](Playback& playback) { playback.toggle(); });
}

void TransportBar::reset() {
    experiment_.play([](Playback& playback) { playback.reset(); });
}

void TransportBar::step(int pictures) {
    experiment_.play([pictures](Playback& playback) { playback.step(pictures * kStep); });
}

void TransportBar::tick() {
    const double passed = static_cast<double>(clock_.restart()) / 1000;
    experiment_.play(
        [passed](Playback& playback) { playback.advance(std::min(passed, kLongestPause)); });
}

void TransportBar::show() {
    const Playback& playback = experiment_.playback();
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
    look::setToolTip(*start_, playback.duration() > 0
                                  ? QStringLiteral("ou barre d’espace")
                                  : QStringLiteral("Lancé ainsi, le projectile reste au sol."));
    const QSignalBlocker blocker(time_);
    time_->setValue(positionAt(playback.time()));
    const QString seconds = common::frenchNumber(playback.time(), 2);
    reading_->setFormula(QStringLiteral("t\u00A0=\u00A0%1\\text{\u00A0s}").arg(seconds),
                         QStringLiteral("t\u00A0=\u00A0%1\u00A0s").arg(seconds));
}

} // namespace projectile
