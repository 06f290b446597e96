# SPDX-License-Identifier: MIT
#
# A thin front door; the build itself is CMake's (see CMakePresets.json). `make help` lists what is
# behind it: the targets with "##" below.

.DEFAULT_GOAL := build
.PHONY: help deps deps-ci deps-packages deps-windows deps-js configure build demo test bench install \
	packages windows js asan tidy format format-check clean
.NOTPARALLEL:

JOBS ?= $(shell nproc 2>/dev/null || echo 2)
PREFIX ?= /usr/local
PROGRAM := build/release/a2l2json
CXX_FILES = $(shell git ls-files --cached --others --exclude-standard '*.cpp' '*.h' '*.hpp')

help: ## list these targets
	@echo 'make <target> [JOBS=<processes>]'
	@sed -n 's/^\([a-z-]*\):.*## /\1:/p' $(MAKEFILE_LIST) | \
	  while IFS=: read -r target text; do printf '  %-14s %s\n' "$$target" "$$text"; done

deps: ## install what the build and its tests need
	@bash scripts/deps build

deps-ci: deps ## install the tools of the further checks too
	@bash scripts/deps ci

deps-packages: deps ## install the tools that make packages too
	@bash scripts/deps packages

deps-windows: deps ## install the compiler for Windows, and Wine, too
	@bash scripts/deps windows

configure: deps
	cmake --preset release

build: configure ## build the programs, build/release/a2l2json and a2lmend (this is the default)
	cmake --build --preset release -j $(JOBS) --target a2l2json a2lmend

demo: build ## build it and convert examples/demo.a2l
	$(PROGRAM) examples/demo.a2l build/demo.json
	@head -c 400 build/demo.json; echo

test: build ## build everything, run all tests, and say what was skipped and why
	cmake --build --preset release -j $(JOBS)
	@code=0; ctest --preset release || code=$$?; \
	  python3 tests/skipped.py build/release/tests.xml; exit $$code

# A minute or two, and 2 GB in memory-backed storage.
bench: deps ## measure how fast it is here, as one table of speeds, memory and ratios
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	python3 bench/run.py --bench build/bench/a2l2json_bench --program build/bench/a2l2json \
	  --generate build/bench/a2l2json_generate $(BENCH_FLAGS)

install: build ## install programs, manual pages, completions and pages to PREFIX (/usr/local)
	cmake --install build/release --prefix "$(PREFIX)"

packages: deps-packages ## make a Debian package and an archive, in build/packages
	rm -rf build/packages
	cmake --preset package
	cmake --build --preset package -j $(JOBS)
	cpack --preset package
	@rm -rf build/packages/_CPack_Packages
	@ls -l build/packages

deps-js: deps ## install the compiler for WebAssembly and the packages of js/, too
	@bash scripts/deps js

windows: deps-windows ## build the programs for Windows, build/windows/a2l2json.exe and a2lmend.exe
	cmake --preset windows
	cmake --build --preset windows -j $(JOBS)

js: deps-js ## build and test the npm package, build/packages/a2l2json-VERSION.tgz
	cmake --preset wasm
	cmake --build --preset wasm -j $(JOBS)
	cd js && node scripts/assemble.js && npm test
	mkdir -p build/packages
	cd js && npm pack --pack-destination ../build/packages

asan: deps-ci ## run the tests under AddressSanitizer and UndefinedBehaviorSanitizer
	cmake --preset asan-ubsan
	cmake --build --preset asan-ubsan -j $(JOBS)
	ctest --preset asan-ubsan

tidy: deps-ci ## run clang-tidy on every source
	cmake --preset tidy
	cmake --build --preset tidy -j $(JOBS)

format: deps-ci ## format the sources
	clang-format -i $(CXX_FILES)

format-check: deps-ci ## say whether the sources are formatted
	clang-format --dry-run -Werror $(CXX_FILES)

clean: ## remove everything that was built
	rm -rf build
