#include "platform/qt/patient_activator.h"

#include <utility>

namespace platform {

PatientActivator::PatientActivator(WindowActivator& inner, GivenUp givenUp)
    : inner_(inner), givenUp_(std::move(givenUp)) {
    timer_.setInterval(kInterval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tryAgain(); });
}

bool PatientActivator::activate(qint64 pid, const QString& programName) {
    timer_.stop();
    pid_ = pid;
    programName_ = programName;
    if (tryNow())
        return true;
    triesLeft_ = static_cast<int>(kPatience / kInterval);
    if (seen_.contains(pid))
        giveUp();
    else
        timer_.start();
    return false;
}

bool PatientActivator::tryNow() {
    const bool found = inner_.activate(pid_, programName_);
    if (found)
        seen_.insert(pid_);
    return found;
}

void PatientActivator::tryAgain() {
    --triesLeft_;
    if (tryNow())
        timer_.stop();
    else if (triesLeft_ <= 0)
        giveUp();
}

void PatientActivator::giveUp() {
    timer_.stop();
    if (givenUp_)
        givenUp_(programName_);
}

} // namespace platform
