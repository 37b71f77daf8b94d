# The commands of the project; each installs what it needs first. See README.md.
.PHONY: run install package programs test test-asan bench check format tidy fuzz deps build clean

JOBS ?= $(shell nproc)
PRESET ?= dev
CTEST = ctest --test-dir build/$(1) --output-on-failure --no-tests=error -j $(JOBS)
# Real browsers and real clicks, two suites at a time: one that a busy machine has cheated of a key or a second gets a second try.
LIVE = $(call CTEST,$(1)) -LE unit --repeat until-pass:2

run: build
	@packaging/run.sh build/$(PRESET)/bin

test: build
	$(call CTEST,$(PRESET)) -L unit
	$(call LIVE,$(PRESET))

# Qt WebEngine frees some of its own objects by a base class that does not know their size.
test-asan: deps
	cmake --preset asan
	cmake --build --preset asan -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=0:abort_on_error=1:new_delete_type_mismatch=0 UBSAN_OPTIONS=print_stacktrace=1 $(call CTEST,asan) -LE e2e

bench: deps
	cmake --preset release
	cmake --build --preset release -j $(JOBS)
	bench/run.sh build/release/bin

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)
	@FUZZ_SECONDS=$(FUZZ_SECONDS) JOBS=$(JOBS) tools/fuzz.sh build/fuzz

# Format, forbidden includes and words, static analysis, tests: what CI runs and what a commit should pass.
check: build
	tools/check.sh build/$(PRESET)
	$(MAKE) test

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

tidy: build
	tools/tidy.sh build/$(PRESET)

# PREFIX=/usr/local unless told otherwise; DESTDIR is kept.
PREFIX ?= /usr/local
install: programs
	cmake --install build/release --prefix $(PREFIX)

package: programs
	cd build/release && cpack

# What is installed, and no tests.
programs: deps
	cmake --preset release
	cmake --build --preset release -j $(JOBS) --target trawlex trawlex-harvest trawlex-mdb-reader trawlex-browser-holder

build: deps
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET) -j $(JOBS)

deps:
	@packaging/install-deps.sh

clean:
	rm -rf build
