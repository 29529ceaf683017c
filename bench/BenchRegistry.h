// The figures of the boundary benchmarks: floors, and the cases divided by them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zebbench {

// Runs the figure's ops boundary crossings (or native operations) once. It owns what its
// set-up made (a Lua session, a canvas, a Cairo context) and tears it down when the last
// copy of it is destroyed.
using Step = std::function<void()>;
// Makes everything a figure needs and answers the step over it; a set-up failure ends the
// program, since a step on a half-made fixture measures nothing.
using SetUp = Step (*)(int ops);

struct Figure {
    std::string id;     // the figure's name in the table, the JSON and the counters
    std::string label;  // what the table shows
    std::string floor;  // id of the figure it is divided by; empty for a floor
    int ops;            // operations per step; 0 for a difference
    SetUp setUp;        // null for a difference
    std::string whole;  // a difference: the figure measured with the operation...
    std::string part;   // ...and the one measured without it
};

// A floor is the cheapest form of the same crossing, or the native work without Lua;
// every case names the floor its ratio is taken to. A case may be another case's floor.
void RegisterFloor(const char* id, const char* label, int ops, SetUp setUp);
void RegisterCase(const char* id, const char* label, const char* floor, int ops, SetUp setUp);
// A case that cannot run alone, such as one call inside a scope that must be opened for
// it: whole minus part, both measured in the same repetition. Has no step of its own.
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
