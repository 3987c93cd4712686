#include "projectile/transport_bar.h"

#include "common/french_number.h"
#include "common/house.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include <cmath>

namespace projectile {

namespace {

/// Pictures a second while it runs.
constexpr int kPictureMilliseconds = 16;

/// One step by hand, in seconds of the flight.
constexpr double kStep = 0.02;

/// A flight has so many positions of the slider.
constexpr int kPositions = 1000;

/// A machine that slept does not make the projectile jump; s.
constexpr double kLongestPause = 0.25;

constexpr double kRates[] = {0.1, 0.25, 0.5, 1, 2, 5, 10};
constexpr int kUsualRate = 3;

QIcon icon(const char* name) {
    return QIcon(QStringLiteral(":/projectile/%1.svg").arg(QString::fromLatin1(name)));
}

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
    connect(&experiment_, &Experiment::changed, this, &TransportBar::show);
    connect(&experiment_, &Experiment::moved, this, &TransportBar::show);
    show();
}

void TransportBar::addButtons() {
    const auto add = [this](const char* picture, const QString& name, auto action) {
        auto* button = new QPushButton(icon(picture), {});
        button->setFixedWidth(40);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the space bar to the simulation
        button->setIconSize({18, 18});
        button->setStyleSheet(QStringLiteral("padding: 0;"));
        button->setToolTip(name);
        button->setAccessibleName(name);
        connect(button, &QPushButton::clicked, this, action);
        layout()->addWidget(button);
        return button;
    };
    add("to-start", QStringLiteral("Revenir au départ"), [this] { reset(); });
    add("step-back", QStringLiteral("Un pas en arrière"), [this] {
        step(-1);
    })->setAutoRepeat(true);
    start_ = new QPushButton;
    start_->setProperty("main", true);
    start_->setIconSize({18, 18});
    start_->setFixedWidth(104);
    start_->setFocusPolicy(Qt::TabFocus);
    connect(start_, &QPushButton::clicked, this, [this] { toggle(); });
    layout()->addWidget(start_);
    add("step", QStringLiteral("Un pas en avant"), [this] { step(1); })->setAutoRepeat(true);
}

void TransportBar::addTime() {
    time_ = new QSlider(Qt::Horizontal);
    time_->setRange(0, kPositions);
    time_->setMinimumWidth(64); // it would be the first to give way
    time_->setAccessibleName(QStringLiteral("Temps"));
    time_->setPageStep(kPositions / 20);
    connect(time_, &QSlider::valueChanged, this, [this](int position) {
        const double t = experiment_.playback().duration() * position / kPositions;
        experiment_.play([t](Playback& playback) { playback.seek(t); });
    });
    reading_ = new QLabel;
    reading_->setFixedWidth(88);
    reading_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    static_cast<QHBoxLayout*>(layout())->addWidget(time_, 1);
    layout()->addWidget(reading_);
}

void TransportBar::addRates() {
    rates_ = new QComboBox;
    for (const double rate : kRates)
        rates_->addItem(QStringLiteral("×\u00A0") + common::frenchDigits(rate, 2));
    rates_->setCurrentIndex(kUsualRate);
    rates_->setAccessibleName(QStringLiteral("Vitesse de la simulation"));
    rates_->setToolTip(QStringLiteral("ralenti ou accéléré"));
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
        start_->setText(caption);
        start_->setIcon(icon(playback.isRunning() ? "pause" : "play"));
    }
    start_->setEnabled(playback.duration() > 0);
    start_->setToolTip(playback.duration() > 0
                           ? QStringLiteral("ou barre d’espace")
                           : QStringLiteral("Lancé ainsi, le projectile reste au sol."));
    const QSignalBlocker blocker(time_);
    time_->setValue(
        playback.duration() > 0
            ? static_cast<int>(std::lround(playback.time() / playback.duration() * kPositions))
            : 0);
    reading_->setText(
        QStringLiteral("t\u00A0=\u00A0%1\u00A0s").arg(common::frenchNumber(playback.time(), 2)));
}

} // namespace projectile
