# SPDX-License-Identifier: MIT
#
# A thin front door; the build itself is CMake's (see CMakePresets.json).

.DEFAULT_GOAL := build
.PHONY: deps deps-ci deps-packages deps-windows configure build demo test bench packages windows \
	asan tidy format format-check clean
.NOTPARALLEL:

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
PROGRAM := build/release/a2l2json
CXX_FILES = $(shell git ls-files --cached --others --exclude-standard '*.cpp' '*.h' '*.hpp')

deps:
	@bash scripts/deps build

deps-ci: deps
	@bash scripts/deps ci

deps-packages: deps
	@bash scripts/deps packages

deps-windows: deps
	@bash scripts/deps windows

configure: deps
	cmake --preset release

build: configure
	cmake --build --preset release -j $(JOBS) --target a2l2json

demo: build
	$(PROGRAM) examples/demo.a2l build/demo.json
	@head -c 400 build/demo.json; echo

test: build
	cmake --build --preset release -j $(JOBS)
	ctest --preset release

# One table of speeds, memory and ratios; a minute or two, and 2 GB in memory-backed storage.
bench: deps
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	python3 bench/run.py --bench build/bench/a2l2json_bench --program build/bench/a2l2json \
	  --generate build/bench/a2l2json_generate $(BENCH_FLAGS)

packages: deps-packages
	rm -rf build/packages
	cmake --preset package
	cmake --build --preset package -j $(JOBS)
	cpack --preset package
	@rm -rf build/packages/_CPack_Packages
	@ls -l build/packages

windows: deps-windows
	cmake --preset windows
	cmake --build --preset windows -j $(JOBS)

asan: deps-ci
	cmake --preset asan-ubsan
	cmake --build --preset asan-ubsan -j $(JOBS)
	ctest --preset asan-ubsan

tidy: deps-ci
	cmake --preset tidy
	cmake --build --preset tidy -j $(JOBS)

format: deps-ci
	clang-format -i $(CXX_FILES)

format-check: deps-ci
	clang-format --dry-run -Werror $(CXX_FILES)

clean:
	rm -rf build
