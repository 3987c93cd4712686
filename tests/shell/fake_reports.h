#pragma once

#include "shell/report_sink.h"

#include <QStringList>

/// Keeps the lines reported.
class FakeReports : public shell::ReportSink {
public:
    void report(const QString& line) override { lines.append(line); }

    QStringList lines;
};
