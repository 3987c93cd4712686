#include "platform/qt/patient_activator.h"

namespace platform {

PatientActivator::PatientActivator(WindowActivator& inner) : inner_(inner) {
    timer_.setInterval(kInterval);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tryAgain(); });
}

bool PatientActivator::activate(qint64 pid, const QString& programName) {
    timer_.stop();
    if (inner_.activate(pid, programName))
        return true;
    pid_ = pid;
    programName_ = programName;
    triesLeft_ = static_cast<int>(kPatience / kInterval);
    timer_.start();
    return false;
}

void PatientActivator::tryAgain() {
    --triesLeft_;
    if (inner_.activate(pid_, programName_) || triesLeft_ <= 0)
        timer_.stop();
}

} // namespace platform
