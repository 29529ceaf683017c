// Groups of figures, calibrated batches and the rounds that alternate them.
#include "bench/BenchGroup.h"

#include <time.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchRegistry.h"

namespace zebbench {

namespace {

// About 2 ms a batch: far shorter than a spell of the machine at one speed, so a member and
// the next one's batch mostly share a speed. Shorter batches (0.2 ms) measure the scope
// cases cold: after the tree's batch they find their Lua heaps out of the caches, and the
// draw scope's ratio rises by a third.
constexpr std::int64_t kBatchNs = 2000000;

// The CPU time of this thread: other engineers' builds on the same cores do not count.
std::int64_t threadNs() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return std::int64_t(now.tv_sec) * 1000000000 + now.tv_nsec;
}

struct Group {
    std::string name;                    // its first floor's id
    std::vector<const Figure*> figures;  // in registration order, differences included
    std::vector<const Figure*> members;  // the figures with a step
    std::vector<std::int64_t> batches;   // steps per batch of each member, once calibrated
};

std::vector<Group>& groups() {
    static std::vector<Group> sGroups;
    return sGroups;
}

// The figures joined by a floor, a whole or a part, each set in order of its first figure.
std::vector<Group> deriveGroups() {
    const std::vector<Figure>& all = Figures();
    std::vector<size_t> parent(all.size());
    std::iota(parent.begin(), parent.end(), size_t(0));
    auto root = [&](size_t i) {
        while (parent[i] != i)
            i = parent[i] = parent[parent[i]];
        return i;
    };
    auto join = [&](size_t i, const std::string& id) {
        if (const Figure* other = id.empty() ? nullptr : FindFigure(id))
            parent[root(i)] = root(size_t(other - all.data()));
    };
    for (size_t i = 0; i < all.size(); ++i) {
        join(i, all[i].floor);
        join(i, all[i].whole);
        join(i, all[i].part);
    }
    std::vector<Group> result;
    std::map<size_t, size_t> groupOfRoot;
    for (size_t i = 0; i < all.size(); ++i) {
        const auto found = groupOfRoot.emplace(root(i), result.size());
        if (found.second) result.push_back(Group{"", {}, {}, {}});
        Group& group = result[found.first->second];
        group.figures.push_back(&all[i]);
        if (all[i].setUp) group.members.push_back(&all[i]);
    }
    for (Group& group : result) {
        group.name = group.figures.front()->id;  // a group without a floor is named by its first
        for (auto figure = group.figures.rbegin(); figure != group.figures.rend(); ++figure)
            if ((*figure)->floor.empty()) group.name = (*figure)->id;
    }
    return result;
}

// How many steps make a batch of about kBatchNs, from one run of a doubling count that
// lasts at least that long. The step runs once before, so that first-run work (tables
// made lazily, caches) stays out of it.
std::int64_t calibrate(const Step& step) {
    step();
    for (std::int64_t steps = 1;; steps *= 2) {
        const std::int64_t start = threadNs();
        for (std::int64_t i = 0; i < steps; ++i)
            step();
        const std::int64_t spent = threadNs() - start;
        if (spent >= kBatchNs) return std::max<std::int64_t>(1, steps * kBatchNs / spent);
    }
}

// Every iteration is a round: one batch of each member in turn, each timed alone. The
// counters are this repetition's, so that a case and its floor are divided only by times
// taken in the same rounds. Each repetition makes its own fixtures, as a fresh process
// would: one fixture kept for the whole run could land in memory that is slower to reach
// for every repetition alike.
void runGroup(benchmark::State& state, Group& group) {
    const size_t count = group.members.size();
    std::vector<Step> steps;
    for (const Figure* member : group.members)
        steps.push_back(member->setUp(member->ops));
    if (group.batches.empty()) {
        for (const Step& step : steps)
            group.batches.push_back(calibrate(step));
    } else {
        for (const Step& step : steps)
            step(); /* first-run work, as in calibrate */
    }
    std::vector<std::int64_t> spent(count, 0);
    std::vector<std::int64_t> stepsRun(count, 0);
    for (auto _ : state) {
        for (size_t m = 0; m < count; ++m) {
            const Step& step = steps[m];
            const std::int64_t batch = group.batches[m];
            const std::int64_t start = threadNs();
            for (std::int64_t i = 0; i < batch; ++i)
                step();
            spent[m] += threadNs() - start;
            stepsRun[m] += batch;
        }
    }
    std::map<std::string, double> nsPerOp;
    for (size_t m = 0; m < count; ++m) {
        const Figure* member = group.members[m];
        if (stepsRun[m] > 0)
            nsPerOp[member->id] = double(spent[m]) / double(stepsRun[m] * member->ops);
    }
    for (const Figure* figure : group.figures) {
        if (figure->setUp) continue;
        const auto whole = nsPerOp.find(figure->whole);
        const auto part = nsPerOp.find(figure->part);
        if (whole != nsPerOp.end() && part != nsPerOp.end())
            nsPerOp[figure->id] = whole->second - part->second;
    }
    for (const Figure* figure : group.figures) {
        const auto ns = nsPerOp.find(figure->id);
        if (ns == nsPerOp.end()) continue;
        state.counters[NsPerOpCounter(figure->id)] = ns->second;
        const auto floor = nsPerOp.find(figure->floor);
        if (floor != nsPerOp.end() && floor->second > 0)
            state.counters[RatioCounter(figure->id)] = ns->second / floor->second;
    }
}

}  // namespace

void RegisterGroups() {
    groups() = deriveGroups();
    for (size_t i = 0; i < groups().size(); ++i)
        benchmark::RegisterBenchmark(groups()[i].name.c_str(), [i](benchmark::State& state) {
            runGroup(state, groups()[i]);
        });
}

std::string NsPerOpCounter(const std::string& id) {
    return id + ":ns_per_op";
}

std::string RatioCounter(const std::string& id) {
    return id + ":ratio";
}

}  // namespace zebbench
