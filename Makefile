# Set-up, build, run and test in one place; every target installs what is missing first.
BUILD   ?= build
ORDNER  ?= $(CURDIR)/arbeitsordner
JOBS    ?= $(shell nproc)

.PHONY: deps configure build run test test-lang sanitizer bench format clean

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@scripts/run.sh $(BUILD) $(ORDNER)

test: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS) -LE lang

# The long-running tests (label "lang"): interruptions at every step, 50 kills.
test-lang: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS) -L lang

# The core and its tests once more with address and undefined-behaviour checks.
sanitizer: deps
	@cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLONVIR_GUI=OFF \
		-DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-sanitize-recover=undefined" >/dev/null
	@cmake --build build-asan -j $(JOBS)
	@cd build-asan && ctest --output-on-failure -j $(JOBS) -LE lang

bench: build
	@$(BUILD)/bench/lonvir_bench

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	@rm -rf $(BUILD) build-asan
