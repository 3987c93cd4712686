#pragma once

#include "shell/report_sink.h"
#include "viewer/neighbours.h"

namespace app {

/// Stands for a window that this edition of the shell does not have: it says so in the main
/// window's status text.
class Unavailable : public viewer::ModalWindow {
public:
    Unavailable(shell::ReportSink& reports, QString sentence)
        : reports_(reports), sentence_(std::move(sentence)) {}

    void open() override { reports_.report(sentence_); }

private:
    shell::ReportSink& reports_;
    QString sentence_;
};

} // namespace app
