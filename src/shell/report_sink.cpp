#include "shell/report_sink.h"

#include "platform/terminal.h"

namespace shell {

void reportFailure(ReportSink& sink, const QString& line) {
    sink.report(line);
    platform::tellOnTerminal(line);
}

} // namespace shell
