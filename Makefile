# The two entry points: `make run` and `make test`. Each installs what is missing, configures
# once, builds incrementally and then runs.
BUILD ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench install package clean

all: build

deps:
	@sh scripts/install-deps.sh

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)

configure: deps $(BUILD)/build.ninja

build: configure
	cmake --build $(BUILD) --parallel $(JOBS)

run: build
	$(BUILD)/tagsmith $(ARGS)

test: build
	cd $(BUILD) && ctest --output-on-failure --parallel $(JOBS)

bench: build
	cmake --build $(BUILD) --target benchmarks

install: build
	cmake --install $(BUILD)

# A .deb of this build, in $(BUILD)/: tagsmith_VERSION_ARCH.deb.
package: build
	cmake --build $(BUILD) --target package

clean:
	rm -rf $(BUILD)
