# The two commands a newcomer needs: `make demo` and `make test`.
BUILD       ?= build
GENERATOR   := $(if $(shell command -v ninja 2>/dev/null),-G Ninja,)
JOBS        ?= $(shell nproc)
DEMO_BUILD  := $(BUILD)/release
TEST_BUILD  := $(BUILD)/asan
BENCH_BUILD := $(BUILD)/bench

.PHONY: all setup build demo test bench format clean

all: build

setup:
	@bash scripts/setup.sh

$(DEMO_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(DEMO_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DZEBLUA_BUILD_TESTS=OFF

$(TEST_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(TEST_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DZEBLUA_SANITIZE=ON

$(BENCH_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(BENCH_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DZEBLUA_BUILD_TESTS=OFF -DZEBLUA_BUILD_BENCH=ON

build: setup $(DEMO_BUILD)/CMakeCache.txt
	cmake --build $(DEMO_BUILD) -j $(JOBS)

demo: build
	@bash scripts/demo.sh $(DEMO_BUILD)

test: setup $(TEST_BUILD)/CMakeCache.txt
	cmake --build $(TEST_BUILD) -j $(JOBS)
	cd $(TEST_BUILD) && ctest --output-on-failure -j $(JOBS)

# The ratio table on stdout; the same figures in $(BENCH_BUILD)/report.json, Google
# Benchmark's own output in $(BENCH_BUILD)/benchmark.json. BENCH_ARGS passes more flags.
bench: setup $(BENCH_BUILD)/CMakeCache.txt
	cmake --build $(BENCH_BUILD) -j $(JOBS) --target zeblua_bench
	$(BENCH_BUILD)/bin/zeblua_bench --report_json=$(BENCH_BUILD)/report.json \
	  --report_commit=$$(git rev-parse --short HEAD 2>/dev/null) \
	  --benchmark_out=$(BENCH_BUILD)/benchmark.json --benchmark_out_format=json $(BENCH_ARGS)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD)
