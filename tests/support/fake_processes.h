#pragma once

#include "platform/processes.h"

#include <utility>
#include <vector>

namespace test_support {

/// Starts nothing: keeps what was asked for and answers with `result`.
class FakeStarter : public platform::ProcessStarter {
public:
    platform::StartResult start(const QString& program,
                                const platform::ProgramVariables& given) override {
        programs.append(program);
        variables = given;
        return result;
    }

    QStringList programs;
    platform::ProgramVariables variables; ///< given to the last one
    platform::StartResult result{4711};
};

/// Activates nothing: keeps what was asked for and answers with `result`.
class FakeActivator : public platform::WindowActivator {
public:
    bool activate(qint64 pid, const QString& programName) override {
        requests.emplace_back(pid, programName);
        return result;
    }

    std::vector<std::pair<qint64, QString>> requests;
    bool result = true;
};

} // namespace test_support
