// The figures of the boundary benchmarks: floors, and the cases divided by them.
#pragma once

#include <string>
#include <vector>

namespace benchmark {
class State;
}

namespace zebbench {

// A body runs ops boundary crossings (or native operations) per iteration of state.
using BenchBody = void (*)(benchmark::State& state, int ops);

struct Figure {
    std::string id;     // the Google Benchmark name, for --benchmark_filter
    std::string label;  // what the table shows
    std::string floor;  // id of the figure it is divided by; empty for a floor
    int ops;            // operations per measured iteration; 0 for a difference
    std::string whole;  // a difference: the figure measured with the operation...
    std::string part;   // ...and the one measured without it
};

// A floor is the cheapest form of the same crossing, or the native work without Lua;
// every case names the floor measured in the same process that its ratio is taken to. A
// case may be another case's floor.
void RegisterFloor(const char* id, const char* label, int ops, BenchBody body);
void RegisterCase(const char* id, const char* label, const char* floor, int ops, BenchBody body);
// A case that cannot run alone, such as one call inside a scope that must be opened for
// it: whole minus part, both measured in this process. Registers no benchmark.
void RegisterDifference(const char* id, const char* label, const char* floor, const char* whole,
                        const char* part);

// In registration order.
const std::vector<Figure>& Figures();
const Figure* FindFigure(const std::string& id);

// The suites, each in its own source; main registers them in this order.
void RegisterBoundaryFloors();
void RegisterStringBenchmarks();
void RegisterProxyBenchmarks();
void RegisterMarshallingBenchmarks();
void RegisterDrawingBenchmarks();
void RegisterDispatchBenchmarks();
void RegisterTreeBenchmarks();

}  // namespace zebbench
