#pragma once

#include "shell/report_sink.h"
#include "viewer/neighbours.h"

namespace app {

// What this edition of the shell does not have yet. Each says so in the main window's status text
// when it is asked for, and is otherwise as if there were nothing to do.

class MissingWindow : public viewer::ModalWindow {
public:
    MissingWindow(shell::ReportSink& reports, QString sentence)
        : reports_(reports), sentence_(std::move(sentence)) {}

    void open() override { reports_.report(sentence_); }

private:
    shell::ReportSink& reports_;
    QString sentence_;
};

class MissingVideo : public viewer::VideoDevice {
public:
    explicit MissingVideo(shell::ReportSink& reports) : reports_(reports) {}

    void close() override {}
    void press(int) override {
        reports_.report(QStringLiteral("Cette édition ne lit pas encore les vidéos."));
    }

private:
    shell::ReportSink& reports_;
};

} // namespace app
