#include "shell/report_sink.h"

#include <cstdio>

namespace shell {

void reportFailure(ReportSink& sink, const QString& line) {
    sink.report(line);
    std::fprintf(stderr, "orvalente: %s\n", qUtf8Printable(line));
}

} // namespace shell
