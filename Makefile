# Set-up, build, run and test in one place; every target installs what is missing first.
BUILD   ?= build
ORDNER  ?= $(CURDIR)/arbeitsordner
JOBS    ?= $(shell nproc)

.PHONY: deps configure build run test test-lang sanitizer bench fuzz format clean

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

# The long runs (label "lang"): the year change interrupted at every step and killed 50 times,
# 300 input series killed at random moments.
test-lang: build
	@cd $(BUILD) && ctest --output-on-failure -j $(JOBS) -L lang

# The core and its tests once more with address and undefined-behaviour checks.
sanitizer: deps
	@cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DLONVIR_GUI=OFF \
		-DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-sanitize-recover=undefined" >/dev/null
	@cmake --build build-asan -j $(JOBS)
	@cd build-asan && ctest --output-on-failure -j $(JOBS) -LE lang

# Every fuzz target for FUZZZEIT seconds (clang's libFuzzer, address and undefined-behaviour
# checks); new crash inputs land in build-fuzz/funde/, to be kept under tests/fuzz/funde/.
FUZZZEIT ?= 60
fuzz: deps
	@scripts/fuzz.sh build-fuzz $(FUZZZEIT) $(JOBS)

bench: build
	@$(BUILD)/bench/lonvir_bench

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	@rm -rf $(BUILD) build-asan build-fuzz
