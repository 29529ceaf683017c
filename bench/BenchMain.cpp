// zeblua_bench: the cost of crossing the Lua boundary, each figure beside its floor.
//   zeblua_bench [--report_json=PATH] [--report_commit=ID] [--benchmark_...]
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/BenchGroup.h"
#include "bench/BenchRegistry.h"
#include "bench/RatioReporter.h"

namespace {

// Defaults for a run of about 20 s on a shared machine. Within a group, cases and floors
// alternate in batches of a few milliseconds, so a ratio divides times of the same moments;
// the repetitions of the groups are interleaved at random, and the median of each ratio
// over them is reported. Flags given on the command line come later and win.
const char* const kDefaultFlags[] = {
    "--benchmark_repetitions=25",
    "--benchmark_min_time=0.06",
    "--benchmark_enable_random_interleaving=true",
    "--benchmark_report_aggregates_only=true",
};

// The value of --name=value if arg is that flag.
const char* flagValue(const char* arg, const char* name) {
    const size_t length = std::strlen(name);
    return std::strncmp(arg, name, length) == 0 && arg[length] == '=' ? arg + length + 1 : nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    std::string jsonPath;
    std::string commit;
    std::vector<char*> args{argv[0]};
    for (const char* flag : kDefaultFlags)
        args.push_back(const_cast<char*>(flag));
    for (int i = 1; i < argc; ++i) {
        if (const char* value = flagValue(argv[i], "--report_json"))
            jsonPath = value;
        else if (const char* value = flagValue(argv[i], "--report_commit"))
            commit = value;
        else
            args.push_back(argv[i]);
    }
    int count = static_cast<int>(args.size());
    args.push_back(nullptr);
    benchmark::Initialize(&count, args.data());
    if (benchmark::ReportUnrecognizedArguments(count, args.data())) return 1;

    zebbench::RegisterBoundaryFloors();
    zebbench::RegisterStringBenchmarks();
    zebbench::RegisterProxyBenchmarks();
    zebbench::RegisterMarshallingBenchmarks();
    zebbench::RegisterDrawingBenchmarks();
    zebbench::RegisterDispatchBenchmarks();
    zebbench::RegisterTreeBenchmarks();
    zebbench::RegisterGroups();

    zebbench::RatioReporter reporter(jsonPath, commit);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    if (!reporter.ok()) {
        std::fprintf(stderr, "could not write %s\n", jsonPath.c_str());
        return 1;
    }
    return 0;
}
