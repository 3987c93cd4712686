#pragma once

#include <QString>

namespace shell {

/// Where the main window shows one line about something that could not be done, without a box and
/// without a question.
class ReportSink {
public:
    virtual ~ReportSink() = default;

    /// `line` is a French sentence without a line end; it replaces the one before.
    virtual void report(const QString& line) = 0;
};

/// Hands `line` to `sink` and writes it to standard error too (UTF-8).
void reportFailure(ReportSink& sink, const QString& line);

} // namespace shell
