// The list of figures; BenchGroup turns it into Google benchmarks.
#include "bench/BenchRegistry.h"

namespace zebbench {

namespace {

std::vector<Figure>& figures() {
    static std::vector<Figure> sFigures;
    return sFigures;
}

}  // namespace

void RegisterFloor(const char* id, const char* label, int ops, SetUp setUp) {
    figures().push_back(Figure{id, label, "", ops, setUp, "", ""});
}

void RegisterCase(const char* id, const char* label, const char* floor, int ops, SetUp setUp) {
    figures().push_back(Figure{id, label, floor, ops, setUp, "", ""});
}

void RegisterDifference(const char* id, const char* label, const char* floor, const char* whole,
                        const char* part) {
    figures().push_back(Figure{id, label, floor, 0, nullptr, whole, part});
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
