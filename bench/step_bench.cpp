// What a step forward and a step back cost in a film, from the command to the picture.
//   step_bench FILM

#include "platform/mpv/mpv_video.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

class Screen : public platform::VideoScreen {
public:
    QSize pictureSize() const override { return {320, 240}; }
    void showPicture(const QImage&) override { ++pictures; }
    int pictures = 0;
};

/// Median in milliseconds of `count` steps.
double stepTime(platform::Video& video, Screen& screen, platform::Video::Command step, int count) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const int before = screen.pictures;
        QElapsedTimer timer;
        timer.start();
        video.send(step);
        while (screen.pictures == before && timer.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        // What the seek leaves to do is not the next step's.
        for (QElapsedTimer rest; !rest.isValid() || rest.elapsed() < 20;) {
            if (!rest.isValid())
                rest.start();
            QCoreApplication::processEvents();
        }
    }
    const auto middle = times.begin() + count / 2;
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    Screen screen;
    const auto video = platform::makeMpvVideo();
    if (argc != 2 || !video)
        return 2;
    video->setScreen(&screen);
    video->setFileName(QString::fromLocal8Bit(argv[1]));
    if (!video->send(platform::Video::Command::Open))
        return 1;
    const int count = std::min(video->length() - 1, 100);
    const double forward = stepTime(*video, screen, platform::Video::Command::Step, count);
    const double back = stepTime(*video, screen, platform::Video::Command::Back, count);
    std::printf("step forward %.2f, step back %.2f, back / forward %.2f (goal: at most 2)\n",
                forward, back, back / forward);
}
