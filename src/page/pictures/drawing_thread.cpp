#include "page/pictures/drawing_thread.h"

#include <QCoreApplication>

#include <algorithm>
#include <condition_variable>
#include <ctime>
#include <memory>
#include <mutex>
#include <thread>

namespace page {

namespace {

using std::chrono::milliseconds;

/// How often the time is looked at while work goes on.
constexpr milliseconds kLook{10};

constexpr int kMostHalvings = 3;

constexpr milliseconds kFarewell{1000};

/// What the waiting and the working thread share; the last of them lets go of it.
struct Errand {
    std::function<void(const GivenUp&)> work;
    GivenUp givenUp = false;
    std::mutex mutex;
    std::condition_variable ended;
    bool isDone = false;
};

std::atomic<int> leftBehind = 0;
int halvings = 0;

/// Processor time of this program: while it waits for a drawing, that of the drawing.
milliseconds processorTime() {
    return milliseconds(std::clock() / (CLOCKS_PER_SEC / 1000));
}

/// What is left behind uses the application: it gets some time to end before that goes.
void waitForLeftBehind() {
    for (milliseconds waited{0}; leftBehind > 0 && waited < kFarewell; waited += kLook)
        std::this_thread::sleep_for(kLook);
}

void leaveBehind(Errand& errand) {
    static const bool isAwaited = [] {
        qAddPostRoutine(waitForLeftBehind);
        return true;
    }();
    errand.givenUp = isAwaited;
    ++leftBehind;
}

/// Whether the errand came to its end in time.
bool waitFor(Errand& errand, const Patience& patience) {
    const auto until = std::chrono::steady_clock::now() + patience.wait / (1 << halvings);
    const milliseconds worked = processorTime() + patience.work / (1 << halvings);
    std::unique_lock lock(errand.mutex);
    while (!errand.isDone) {
        if (processorTime() > worked || std::chrono::steady_clock::now() > until) {
            leaveBehind(errand);
            return false;
        }
        errand.ended.wait_for(lock, kLook);
    }
    return true;
}

void run(const std::shared_ptr<Errand>& errand) {
    errand->work(errand->givenUp);
    errand->work = nullptr;
    const std::lock_guard lock(errand->mutex);
    errand->isDone = true;
    if (errand->givenUp)
        --leftBehind;
    errand->ended.notify_one();
}

} // namespace

bool doInTime(std::function<void(const GivenUp&)> work, Patience patience) {
    if (leftBehind >= kMostLeftBehind)
        return false;
    const auto errand = std::make_shared<Errand>();
    errand->work = std::move(work);
    std::thread thread(run, errand);
    if (!waitFor(*errand, patience)) {
        thread.detach();
        halvings = std::min(halvings + 1, kMostHalvings);
        return false;
    }
    thread.join();
    halvings = 0;
    return true;
}

} // namespace page
