# SPDX-License-Identifier: MIT
#
# A thin front door; the build itself is CMake's (see CMakePresets.json). `make help` lists what is
# behind it: the targets with "##" below.

.DEFAULT_GOAL := build
.PHONY: help deps deps-ci deps-packages deps-windows deps-python deps-js deps-page configure build demo \
	test bench install packages wheels python windows js js-package page page-package asan tidy format \
	format-check clean
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

# A few minutes, and 2 GB in memory-backed storage.
bench: deps ## measure how fast it is here, as one table of speeds, memory and ratios
	JOBS=$(JOBS) scripts/profile
	cmake --preset bench
	cmake --build --preset bench -j $(JOBS)
	python3 bench/run.py --bench build/bench/a2l2json_bench --program build/bench/a2l2json \
	  --generate build/bench/a2l2json_generate $(BENCH_FLAGS)

install: build ## install programs, manual pages, completions and pages to PREFIX (/usr/local)
	cmake --install build/release --prefix "$(PREFIX)"

packages: deps ## make everything that is given to users, in dist: see scripts/packages
	@JOBS=$(JOBS) bash scripts/packages

wheels: deps ## make the Python package for each system, in dist
	@JOBS=$(JOBS) bash scripts/packages wheels

python: deps-python ## test the Python package
	cmake --preset wheel
	cmake --build --preset wheel -j $(JOBS)
	python/tools/check build/wheel/capi/liba2l2json.so.1

deps-python: deps ## install what the Python package is tested and packed with, too
	@bash scripts/deps python

deps-js: deps ## install the compiler for WebAssembly and the packages of js/, too
	@bash scripts/deps js

windows: deps-windows ## build the programs for Windows, build/windows/a2l2json.exe and a2lmend.exe
	cmake --preset windows
	cmake --build --preset windows -j $(JOBS)

js-package: deps-js ## build the npm package, dist/a2l2json-VERSION.tgz
	cmake --preset wasm
	cmake --build --preset wasm -j $(JOBS)
	mkdir -p dist
	cd js && npm pack --pack-destination ../dist

js: js-package ## the same, and test it
	cd js && npm test

deps-page: deps-js ## install the packages of web/ and a browser to try the page in, too
	@bash scripts/deps page

page-package: deps-page ## build the page, dist/a2l2json.html
	cmake --preset wasm
	cmake --build --preset wasm -j $(JOBS)
	cd js && node scripts/assemble.js
	cd web && npm run build
	mkdir -p dist
	cp web/dist/index.html dist/a2l2json.html

page: page-package ## the same, and test it
	cd web && npm test && npm run test:page

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
