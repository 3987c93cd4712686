// What writes, with a disc, rights, files or a life that end at any of its calls: what was there
// stays, or what comes is there, and the next run finds nothing of the one before.

#include "faults/fault_scenario.h"
#include "faults/faulty_program.h"
#include "files/publication.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <numeric>
#include <random>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr int kFine = 0;
constexpr int kNotWritten = 74;

/// What stays of a program that was cut short, until the next one.
bool isPassing(const std::string& path) {
    return path.find(".partiel-") != path.npos || path.find("orvalente-passage-") != path.npos ||
           path.find(files::Publication::kFolder) != path.npos;
}

State withoutPassing(State state) {
    std::erase_if(state, [](const auto& entry) { return isPassing(entry.first); });
    return state;
}

/// What a published site says of itself, before it changes anything and once more at the end:
/// between the two it names files that are not there yet, and those that came last by what they
/// were before. Meant so: what it does not name would never be removed.
constexpr char kSite[] = "site/";
constexpr char kSiteList[] = "site/fichiers-publies.txt";
constexpr char kSiteIndex[] = "site/index.html";

/// The files of a site that its list does not name, a line each.
std::string unlistedIn(const State& state) {
    const auto list = state.find(kSiteList);
    const std::string named = list != state.end() ? list->second : std::string();
    std::string unlisted;
    for (const auto& [name, content] : state) {
        const bool isPart = name.starts_with(kSite) && !name.ends_with('/') && name != kSiteList &&
                            name != kSiteIndex;
        if (isPart && named.find(' ' + name.substr(std::size(kSite) - 1) + '\n') == named.npos)
            unlisted += name + '\n';
    }
    return unlisted;
}

std::string namesOf(const State& state) {
    std::string names;
    for (const auto& [name, content] : state)
        names += name + ' ' + std::to_string(content.size()) + '\n';
    return names;
}

bool triesAll() {
    return std::getenv("ORVALENTE_FAULTS") != nullptr;
}

class WriteFaults : public testing::TestWithParam<FaultScenario> {
protected:
    void SetUp() override {
        scenario().prepare(work_);
        if (HasFatalFailure())
            return;
        before_ = state();
        fs::copy(area(), work_.path("saved"), fs::copy_options::recursive);
        const FaultyOutcome outcome = run({area()});
        ASSERT_EQ(outcome.code, kFine) << outcome.said;
        calls_ = outcome.writes;
        after_ = state();
        ASSERT_NE(before_, after_);
        ASSERT_GT(calls_.size(), 3u) << outcome.said;
    }

    const FaultScenario& scenario() const { return GetParam(); }
    State state() const { return stateOf(scenario(), work_); }
    fs::path area() const { return work_.path("area"); }

    FaultyOutcome run(const CallFaults& faults) const {
        return runWithFaults(scenario().command(work_), faults);
    }

    void restore() const {
        fs::remove_all(area());
        fs::copy(work_.path("saved"), area(), fs::copy_options::recursive);
    }

    /// All calls when the environment says so, one of them otherwise, always the same.
    std::vector<std::size_t> chosen(std::string_view manner) const {
        std::vector<std::size_t> all;
        for (std::size_t i = 0; i < calls_.size(); ++i)
            if (manner != "gone" || isPassing(calls_[i])) // what has come to its place may go
                all.push_back(i);
        if (triesAll() || all.empty())
            return all;
        std::seed_seq seed(manner.begin(), manner.end());
        std::mt19937 random(seed);
        return {all[random() % all.size()]};
    }

    void expectOldOrNew() const {
        for (const auto& entry : fs::directory_iterator(area()))
            files::finishPublication(entry.path()); // as who opens the course does
        const State now = withoutPassing(state());
        const auto isOf = [](const State& state, const std::string& name,
                             const std::string& content) {
            const auto found = state.find(name);
            return found != state.end() && (found->second == content || name == kSiteList);
        };
        for (const auto& [name, content] : now)
            EXPECT_TRUE(isOf(before_, name, content) || isOf(after_, name, content) ||
                        name.ends_with('/'))
                << name;
        EXPECT_EQ(unlistedIn(now), "");
        for (const auto& [name, content] : before_)
            EXPECT_TRUE(now.contains(name) || !after_.contains(name)) << name << " is lost";
        const bool isNew = isOf(now, kSiteIndex, fileOf(after_, kSiteIndex));
        if (scenario().unit == Unit::EachThenLast && isNew) {
            for (const auto& [name, content] : after_)
                EXPECT_TRUE(isOf(now, name, content)) << name;
        }
        if (scenario().unit == Unit::All) {
            State files = now;
            std::erase_if(files, [&](const auto& entry) { return entry.first.ends_with('/'); });
            EXPECT_TRUE(files == filesOf(before_) || files == filesOf(after_)) << namesOf(now);
        }
    }

    /// With all calls from there failing so, or that one; then once more, with none.
    void tryOnce(std::string_view manner, std::size_t at) const {
        restore();
        const FaultyOutcome outcome = run({area(), manner, at});
        const testing::ScopedTrace trace(__FILE__, __LINE__, "said: " + outcome.said);
        EXPECT_EQ(outcome.killed, manner == "kill");
        if (!outcome.killed && outcome.code == kFine) {
            EXPECT_EQ(namesOf(withoutPassing(state())), namesOf(after_));
        } else if (!outcome.killed) {
            EXPECT_EQ(outcome.code, kNotWritten);
            // What failed, and why, in words.
            EXPECT_THAT(outcome.said, testing::ContainsRegex(": .* ?: "));
            EXPECT_THAT(outcome.said, testing::Not(HasSubstr("erreur ")));
        }
        if (manner == "full" || manner == "short")
            expectNothingPassing(); // what is in the way can be removed
        expectOldOrNew();
        const FaultyOutcome again = run({area()});
        if (again.code == kFine) // what finds its work done takes nothing away
            expectNothingPassing();
        if (scenario().isRepeatable) {
            EXPECT_EQ(again.code, kFine) << again.said;
            EXPECT_EQ(namesOf(state()), namesOf(after_));
            EXPECT_TRUE(state() == after_);
        }
    }

    void expectNothingPassing() const {
        for (const auto& [name, content] : state())
            EXPECT_FALSE(isPassing(name)) << name << " stays";
    }

    static std::string fileOf(const State& state, const std::string& name) {
        const auto found = state.find(name);
        return found != state.end() ? found->second : std::string();
    }
    static State filesOf(State state) {
        std::erase_if(state, [](const auto& entry) { return entry.first.ends_with('/'); });
        return state;
    }

    Workspace work_;
    State before_;
    State after_;
    std::vector<std::string> calls_;
};

TEST_P(WriteFaults, leaveTheOldOrTheNew) {
    std::size_t tried = 0;
    for (const std::string_view manner : kManners) {
        for (const std::size_t at : chosen(manner)) {
            const testing::ScopedTrace trace(__FILE__, __LINE__,
                                             std::string(manner) + " from call " +
                                                 std::to_string(at) + ", " + calls_[at]);
            tryOnce(manner, at);
            if (HasFailure())
                return;
            ++tried;
        }
    }
    if (triesAll()) // minutes: who waits is told how far it is
        std::cout << scenario().name << ": " << calls_.size() << " calls, " << tried << " faults"
                  << std::endl;
}

INSTANTIATE_TEST_SUITE_P(Everywhere, WriteFaults, testing::ValuesIn(faultScenarios()),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
