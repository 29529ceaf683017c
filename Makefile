# The two commands a newcomer needs: `make demo` and `make test`.
BUILD      ?= build
GENERATOR  := $(if $(shell command -v ninja 2>/dev/null),-G Ninja,)
JOBS       ?= $(shell nproc)
DEMO_BUILD := $(BUILD)/release
TEST_BUILD := $(BUILD)/asan

.PHONY: all setup build demo test format clean

all: build

setup:
	@bash scripts/setup.sh

$(DEMO_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(DEMO_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release -DZEBLUA_BUILD_TESTS=OFF

$(TEST_BUILD)/CMakeCache.txt: | setup
	cmake -S . -B $(TEST_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DZEBLUA_SANITIZE=ON

build: setup $(DEMO_BUILD)/CMakeCache.txt
	cmake --build $(DEMO_BUILD) -j $(JOBS)

demo: build
	@bash scripts/demo.sh $(DEMO_BUILD)

test: setup $(TEST_BUILD)/CMakeCache.txt
	cmake --build $(TEST_BUILD) -j $(JOBS)
	cd $(TEST_BUILD) && ctest --output-on-failure -j $(JOBS)

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD)
