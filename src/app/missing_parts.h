#pragma once

#include "exercises/question_writer.h"
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

class MissingQuestionWriter : public exercises::QuestionWriter {
public:
    std::optional<QString> write(int, const QString&) override {
        return QStringLiteral("Cette édition n’enregistre pas encore les questions.");
    }
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

class MissingPrinting : public viewer::PagePrinting {
public:
    explicit MissingPrinting(shell::ReportSink& reports) : reports_(reports) {}

    void print() override {
        reports_.report(QStringLiteral("Cette édition n’imprime pas encore."));
    }
    void prepare() override {}

private:
    shell::ReportSink& reports_;
};

/// Pages place no links, so there are none to reset.
class MissingLinks : public viewer::PageLinks {
public:
    void shareCursor() override {}
    void reset() override {}
    void resetHighlight(int) override {}
};

} // namespace app
