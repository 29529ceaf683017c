// The list of figures, kept beside Google Benchmark's own registration.
#include "bench/BenchRegistry.h"

#include <benchmark/benchmark.h>

namespace zebbench {

namespace {

std::vector<Figure>& figures() {
    static std::vector<Figure> sFigures;
    return sFigures;
}

void add(const char* id, const char* label, const char* floor, int ops, BenchBody body) {
    figures().push_back(Figure{id, label, floor, ops, "", ""});
    benchmark::RegisterBenchmark(id, [body, ops](benchmark::State& state) { body(state, ops); });
}

}  // namespace

void RegisterFloor(const char* id, const char* label, int ops, BenchBody body) {
    add(id, label, "", ops, body);
}

void RegisterCase(const char* id, const char* label, const char* floor, int ops, BenchBody body) {
    add(id, label, floor, ops, body);
}

void RegisterDifference(const char* id, const char* label, const char* floor, const char* whole,
                        const char* part) {
    figures().push_back(Figure{id, label, floor, 0, whole, part});
}

const std::vector<Figure>& Figures() {
    return figures();
}

const Figure* FindFigure(const std::string& id) {
    for (const Figure& figure : figures())
        if (figure.id == id) return &figure;
    return nullptr;
}

}  // namespace zebbench
