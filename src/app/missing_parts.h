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

} // namespace app
