# The two commands a newcomer needs: `make demo` and `make test`.
BUILD          ?= build
GENERATOR      := $(if $(shell command -v ninja 2>/dev/null),-G Ninja,)
JOBS           ?= $(shell nproc)
DEMO_BUILD     := $(BUILD)/release
TEST_BUILD     := $(BUILD)/asan
VALGRIND_BUILD := $(BUILD)/valgrind
FUZZ_BUILD     := $(BUILD)/fuzz
BENCH_BUILD    := $(BUILD)/bench
# Seconds per fuzz target; `make test` runs the short pass, `make fuzz FUZZ_SECONDS=600` a long one.
FUZZ_SECONDS   ?= 20
FUZZ_CC        ?= clang-14
FUZZ_CXX       ?= clang++-14

.PHONY: all setup build demo test memcheck fuzz bench format clean

all: build

setup:
	@bash scripts/setup.sh

$(DEMO_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(DEMO_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DZEBLUA_BUILD_TESTS=OFF

$(TEST_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(TEST_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DZEBLUA_SANITIZE=ON

# Optimised with debug info and no sanitizer, so that one build checks the optimised code
# and gives valgrind readable stacks.
$(VALGRIND_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(VALGRIND_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=RelWithDebInfo

$(FUZZ_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(FUZZ_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_C_COMPILER=$(FUZZ_CC) -DCMAKE_CXX_COMPILER=$(FUZZ_CXX) -DZEBLUA_FUZZ=ON -DZEBLUA_BUILD_TESTS=OFF

$(BENCH_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(BENCH_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DZEBLUA_BUILD_TESTS=OFF -DZEBLUA_BUILD_BENCH=ON

build: setup $(DEMO_BUILD)/CMakeCache.txt
	cmake --build $(DEMO_BUILD) -j $(JOBS)

demo: build
	@bash scripts/demo.sh $(DEMO_BUILD)

# The sanitizer run, then every test again under valgrind, then a short pass of each fuzzer.
test: setup $(TEST_BUILD)/CMakeCache.txt
	cmake --build $(TEST_BUILD) -j $(JOBS)
	cd $(TEST_BUILD) && ctest --output-on-failure -j $(JOBS)
	@$(MAKE) --no-print-directory memcheck fuzz

# Every command ctest runs, child processes included, under valgrind memcheck; any error fails.
memcheck: setup $(VALGRIND_BUILD)/CMakeCache.txt
	cmake --build $(VALGRIND_BUILD) -j $(JOBS)
	ctest -V -D ZEBLUA_BUILD=$(VALGRIND_BUILD) -D ZEBLUA_JOBS=$(JOBS) -S tests/valgrind/memcheck.cmake

# Each libFuzzer target of tests/fuzz for FUZZ_SECONDS, as many at once as there are jobs.
fuzz: setup $(FUZZ_BUILD)/CMakeCache.txt
	cmake --build $(FUZZ_BUILD) -j $(JOBS)
	bash tests/fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS) $(JOBS)

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
