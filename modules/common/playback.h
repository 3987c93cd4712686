#pragma once

namespace common {

/// Where the simulation stands on the time axis, and whether it runs.
class Playback {
public:
    double time() const { return time_; }         ///< s since the start
    double duration() const { return duration_; } ///< s
    bool isRunning() const { return running_; }
    bool isAtEnd() const { return time_ >= duration_; }

    /// Another duration: the time stays where it was, as far as that lasts.
    void setDuration(double seconds);

    /// Also while it runs; held within the duration.
    void seek(double seconds);

    /// At the end it starts over. What has no duration never runs.
    void start();
    void pause() { running_ = false; }
    void toggle();
    void reset();

    /// One picture further or back (negative), standing still then.
    void step(double seconds);

    /// `seconds` of the clock on the wall have passed; stops at the end.
    void advance(double seconds);

    /// Seconds of the simulation in a second of the clock; more than 0.
    void setRate(double rate) { rate_ = rate; }
    double rate() const { return rate_; }

private:
    double time_ = 0;
    double duration_ = 0;
    double rate_ = 1;
    bool running_ = false;
};

} // namespace common
